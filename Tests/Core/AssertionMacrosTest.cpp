// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <vector>

#include "Utf8.h"

#include "Misc/AssertionMacros.h"
#include "Standalone/EnsureReports.h"

namespace
{
	/** Hears of every ensure while it lives. */
	class FEnsureRecorder
	{
	public:
		FEnsureRecorder()
		{
			Handle = FEnsureReports::OnReported().AddLambda(
				[this](const FEnsureReport& Report) { Reports.push_back(Report); });
		}
		~FEnsureRecorder() { FEnsureReports::OnReported().Remove(Handle); }

		std::vector<FEnsureReport> Reports;

	private:
		FDelegateHandle Handle;
	};

	bool EnsurePositive(int32 Number)
	{
		return ensure(Number > 0);
	}
}

TEST(Check, PassesWithoutAWord)
{
	::testing::internal::CaptureStderr();
	int32 NumEvaluated = 0;
	check(++NumEvaluated == 1);
	verify(++NumEvaluated == 2);
	EXPECT_EQ(NumEvaluated, 2);
	EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(Check, IsFatalAndPrintsExpressionFileAndLine)
{
	const int32 Number = 1;
	EXPECT_EXIT(check(Number == 2), ::testing::ExitedWithCode(3),
		"^Assertion failed: Number == 2 \\[File:Tests/Core/AssertionMacrosTest.cpp\\] \\[Line: [0-9]+\\] \n");
	EXPECT_EXIT(verify(Number > 2), ::testing::ExitedWithCode(3), "Assertion failed: Number > 2 ");
}

TEST(Check, PrintsItsMessageBelow)
{
	EXPECT_EXIT(checkf(false, TEXT("Got %d of %s"), 3, TEXT("them")), ::testing::ExitedWithCode(3),
		"Assertion failed: false .*\nGot 3 of them\n");
}

TEST(Ensure, ReportsOncePerCallSiteAndGoesOn)
{
	FEnsureRecorder Recorder;
	EXPECT_TRUE(EnsurePositive(1));
	EXPECT_EQ(Recorder.Reports.size(), 0u);
	EXPECT_FALSE(EnsurePositive(0));
	EXPECT_FALSE(EnsurePositive(0));
	EXPECT_EQ(Recorder.Reports.size(), 1u);
	EXPECT_FALSE(ensure(Recorder.Reports.empty())) << "another call site";
	EXPECT_EQ(Recorder.Reports.size(), 2u);
}

TEST(Ensure, ReportsExpressionFileAndLine)
{
	FEnsureRecorder Recorder;
	::testing::internal::CaptureStderr();
	const int32 Line = __LINE__ + 1;
	EXPECT_FALSE(ensureMsgf(Line < 0, TEXT("Line %d"), 7));
	const std::string Printed = ::testing::internal::GetCapturedStderr();
	ASSERT_EQ(Recorder.Reports.size(), 1u);
	EXPECT_EQ(Utf8(Recorder.Reports[0].Expression), "Line < 0");
	EXPECT_EQ(Utf8(Recorder.Reports[0].File), "Tests/Core/AssertionMacrosTest.cpp");
	EXPECT_EQ(Recorder.Reports[0].Line, Line);
	EXPECT_NE(Printed.find("Line < 0"), std::string::npos) << Printed;
	EXPECT_NE(Printed.find("Line 7"), std::string::npos) << Printed;
}
