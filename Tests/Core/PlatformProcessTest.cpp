// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "HAL/PlatformProcess.h"
#include "Misc/CoreDelegates.h"
#include "Standalone/AddressOpener.h"
#include "Utf8.h"

namespace
{
	/** A folder that stands before all others on PATH and holds the test's own opener. */
	class FPlatformProcessTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			std::string Pattern = (std::filesystem::temp_directory_path() / "opener-XXXXXX").string();
			ASSERT_NE(mkdtemp(&Pattern[0]), nullptr);
			Folder = Pattern;
			OldPath = std::getenv("PATH");
			setenv("PATH", Folder.c_str(), 1);
			ASSERT_EQ(mkfifo(Pipe().c_str(), 0600), 0);
		}
		void TearDown() override
		{
			FCoreDelegates::ShouldLaunchUrl.Unbind();
			setenv("PATH", OldPath.c_str(), 1);
			std::filesystem::remove_all(Folder);
		}
		std::string Pipe() const { return (Folder / "called").string(); }
		/** An opener that writes down its arguments and where its output goes. Only the shell's own commands. */
		void InstallOpener() const
		{
			std::ofstream(Folder / "xdg-open") << "#!/bin/sh\nprintf '[%s]' \"$#\" \"$@\" > " << Pipe() << "\n";
			std::filesystem::permissions(Folder / "xdg-open", std::filesystem::perms::owner_all);
		}
		/** Waits until the opener was called and has written everything. */
		std::string ReadCall() const
		{
			std::ifstream Stream(Pipe());
			return std::string(std::istreambuf_iterator<char>(Stream), {});
		}

		std::filesystem::path Folder;
		std::string OldPath;
	};
}

TEST_F(FPlatformProcessTest, PassesAnAddressOnAsOneArgumentThatNoShellReads)
{
	InstallOpener();
	FString Error = TEXT("untouched");
	FPlatformProcess::LaunchURL(TEXT("https://example.com/$(id);'\"*&b=\u00E4"), nullptr, &Error);
	EXPECT_EQ(ReadCall(), "[1][https://example.com/$(id);'\"*&b=\u00E4]");
	EXPECT_EQ(Utf8(Error), "untouched");
}

TEST_F(FPlatformProcessTest, LeavesParametersOut)
{
	InstallOpener();
	FPlatformProcess::LaunchURL(TEXT("http://example.com"), TEXT("--new-window"), nullptr);
	EXPECT_EQ(ReadCall(), "[1][http://example.com]");
}

TEST_F(FPlatformProcessTest, LeavesNoChildBehind)
{
	InstallOpener();
	FPlatformProcess::LaunchURL(TEXT("https://example.com"), nullptr, nullptr);
	EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
	EXPECT_EQ(errno, ECHILD);
	EXPECT_EQ(ReadCall(), "[1][https://example.com]");
}

TEST_F(FPlatformProcessTest, TellsThatTheOpenerCannotBeStarted)
{
	FString Error;
	FPlatformProcess::LaunchURL(TEXT("https://example.com"), nullptr, &Error);
	EXPECT_EQ(Utf8(Error), "'https://example.com' is not opened: xdg-open can't be started: No such file or directory");
	FPlatformProcess::LaunchURL(TEXT("https://example.com"), nullptr, nullptr);
}

TEST_F(FPlatformProcessTest, NeverTriesToPassOnWhatIsNoPageOfTheWeb)
{
	// There is no opener: an attempt to start it would be the error.
	for (const TCHAR* Address : {TEXT("file:///bin/sh"), TEXT("https://a b"), TEXT("--version"), TEXT(""), TEXT("/")})
	{
		FString Error;
		FPlatformProcess::LaunchURL(Address, nullptr, &Error);
		FString Reason;
		ASSERT_FALSE(FAddressOpener::IsAllowed(Address, &Reason));
		EXPECT_EQ(Utf8(Error), "'" + Utf8(Address) + "' is not opened: " + Utf8(Reason));
		FPlatformProcess::LaunchURL(Address, nullptr, nullptr);
	}
}

TEST_F(FPlatformProcessTest, SaysOnStandardErrorWhatItRefusedIfNobodyAsks)
{
	::testing::internal::CaptureStderr();
	FPlatformProcess::LaunchURL(TEXT("file:///etc/passwd"), nullptr, nullptr);
	EXPECT_EQ(::testing::internal::GetCapturedStderr().find("'file:///etc/passwd' is not opened: "), 0U);
	::testing::internal::CaptureStderr();
	FPlatformProcess::LaunchURL(TEXT("a\x1b[2J\n\x9b b"), nullptr, nullptr);
	EXPECT_EQ(::testing::internal::GetCapturedStderr().find("'a?[2J?? b' is not opened: "), 0U);
}

TEST_F(FPlatformProcessTest, OpensNothingThatTheDelegateHoldsBack)
{
	InstallOpener();
	FString Asked;
	bool bAnswer = false;
	FCoreDelegates::ShouldLaunchUrl = FCoreDelegates::FShouldLaunchUrl::CreateLambda(
		[&](const TCHAR* Address)
		{
			Asked = Address;
			return bAnswer;
		});
	FString Error;
	FPlatformProcess::LaunchURL(TEXT("https://example.com/no"), nullptr, &Error);
	EXPECT_EQ(Utf8(Asked), "https://example.com/no");
	EXPECT_EQ(Utf8(Error), "'https://example.com/no' is not opened: held back by the program");
	bAnswer = true;
	FPlatformProcess::LaunchURL(TEXT("https://example.com/yes"), nullptr, nullptr);
	EXPECT_EQ(ReadCall(), "[1][https://example.com/yes]");
}

TEST_F(FPlatformProcessTest, AsksTheDelegateOfEveryAddressButPassesOnOnlyAllowedOnes)
{
	int32 Asked = 0;
	FCoreDelegates::ShouldLaunchUrl = FCoreDelegates::FShouldLaunchUrl::CreateLambda(
		[&Asked](const TCHAR*)
		{
			++Asked;
			return true;
		});
	FString Error;
	FPlatformProcess::LaunchURL(TEXT("ftp://example.com"), nullptr, &Error);
	EXPECT_EQ(Asked, 1);
	EXPECT_NE(Utf8(Error).find("only http:// and https://"), std::string::npos);
}
