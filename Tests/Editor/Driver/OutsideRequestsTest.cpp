// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "Editor.h"
#include "HAL/PlatformProcess.h"
#include "Misc/CoreDelegates.h"
#include "Misc/MessageDialog.h"
#include "SaveGameFolder.h"
#include "TemporaryFolder.h"
#include "ZAVSpoutNames.h"
#include "ZAVTelemetry.h"

class FOutsideRequestsTest : public FEditorStateFixture
{
protected:
	FAnswer GetOutside(const char* Member) { return Ask({{"do", "outside"}})[Member]; }
};

TEST_F(FOutsideRequestsTest, HasNothingAtFirst)
{
	const FAnswer Outside = Ask({{"do", "outside"}});
	for (const char* Member : {"addresses", "refused", "messages", "ensures"})
	{
		EXPECT_EQ(Outside[Member], FAnswer::array()) << Member;
	}
	EXPECT_EQ(Outside["counts"].dump(), "{\"redraws\":0,\"contentSyncs\":0,\"saves\":0}");
}

TEST_F(FOutsideRequestsTest, KeepsAddressesFromLeaving)
{
	for (const TCHAR* Address :
		{TEXT("https://corvane.example/a"), TEXT("file:///etc/passwd"), TEXT(""), TEXT("https://corvane.example/a")})
	{
		FPlatformProcess::LaunchURL(Address, nullptr, nullptr);
	}
	EXPECT_EQ(GetOutside("addresses"),
		FAnswer({"https://corvane.example/a", "file:///etc/passwd", "", "https://corvane.example/a"}));
	EXPECT_EQ(GetOutside("refused"), FAnswer({"file:///etc/passwd", ""}));
}

TEST_F(FOutsideRequestsTest, AnswersMessageBoxes)
{
	const FText Text = FText::FromString(TEXT("Text"));
	const FText Title = FText::FromString(TEXT("Title"));
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::Ok, Text), EAppReturnType::Ok);
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::YesNo, Text, &Title), EAppReturnType::No);
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::OkCancel, Text), EAppReturnType::Cancel);
	EXPECT_EQ(GetOutside("messages").dump(),
		"[{\"kind\":\"Ok\",\"text\":\"Text\",\"title\":null},{\"kind\":\"YesNo\",\"text\":\"Text\",\"title\":\"Title\"},"
		"{\"kind\":\"OkCancel\",\"text\":\"Text\",\"title\":null}]");
}

TEST_F(FOutsideRequestsTest, KeepsFailedEnsures)
{
	ensure(Session.GetTime() < 0.0);
	const int32 Line = __LINE__ - 1;
	const FAnswer Expected = {{{"expression", "Session.GetTime() < 0.0"},
		{"file", "Tests/Editor/Driver/OutsideRequestsTest.cpp"}, {"line", Line}}};
	EXPECT_EQ(GetOutside("ensures"), FAnswer::array({Expected[0]}));
}

TEST_F(FOutsideRequestsTest, CountsWhatTheEditorIsAskedFor)
{
	GEditor->RedrawAllViewports(true);
	GEditor->RedrawAllViewports(false);
	TArray<UObject*> Objects;
	GEditor->SyncBrowserToObjects(Objects, false);
	EXPECT_EQ(GetOutside("counts").dump(), "{\"redraws\":2,\"contentSyncs\":1,\"saves\":0}");
}

TEST_F(FOutsideRequestsTest, CountsTheSaveGamesThatWereWritten)
{
	const FTemporaryFolder Folder;
	FSaveGameFolder SaveGames(Folder.File(""));
	EXPECT_TRUE(SaveGames.SaveGame(false, TEXT("Slot"), 0, {1}));
	EXPECT_FALSE(SaveGames.SaveGame(false, TEXT(".."), 0, {1}));
	EXPECT_TRUE(SaveGames.SaveGame(false, TEXT("Other"), 0, {1}));
	EXPECT_EQ(GetOutside("counts")["saves"], 2);
}

TEST_F(FOutsideRequestsTest, ReadsThePluginsTelemetry)
{
	const int32 Before = GetOutside("telemetry")["wizardOpened"];
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	EXPECT_EQ(GetOutside("telemetry")["wizardOpened"], Before + 1);
	EXPECT_EQ(ZAVTelemetry::GetWizardEditorOpenedCount(), Before + 1);
}

TEST_F(FOutsideRequestsTest, SetsTheSendersThatThePluginSees)
{
	Ask({{"do", "senders"}, {"names", {"b", "A", "b", ""}}});
	const TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	ASSERT_EQ(Names.Num(), 4);
	EXPECT_TRUE(Names[0].Equals(TEXT("b")) && Names[1].Equals(TEXT("A")) && Names[3].IsEmpty());
	GetRefusal({{"do", "senders"}, {"names", {"a", 5}}});
	EXPECT_EQ(ZAVSpoutNames::GetActiveSenderNames().Num(), 4);
	Ask({{"do", "senders"}, {"names", FAnswer::array()}});
	EXPECT_EQ(ZAVSpoutNames::GetActiveSenderNames().Num(), 0);
}

TEST(FOutsideRecorder, LetsGoOfTheOutsideAtItsEnd)
{
	{
		FDriverSession Session;
		EXPECT_TRUE(FCoreDelegates::ModalErrorMessage.IsBound());
		EXPECT_TRUE(FCoreDelegates::ShouldLaunchUrl.IsBound());
	}
	EXPECT_FALSE(FCoreDelegates::ModalErrorMessage.IsBound());
	EXPECT_FALSE(FCoreDelegates::ShouldLaunchUrl.IsBound());
}
