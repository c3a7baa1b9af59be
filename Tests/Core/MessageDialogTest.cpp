// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Misc/CoreDelegates.h"
#include "Misc/MessageDialog.h"

namespace
{
	/** Puts the delegate back as it was before the test. */
	class FMessageDialogTest : public ::testing::Test
	{
	protected:
		void TearDown() override { FCoreDelegates::ModalErrorMessage.Unbind(); }
	};
}

TEST_F(FMessageDialogTest, AsksTheBoundDelegateAndGivesItsAnswer)
{
	EAppMsgType::Type Kind = EAppMsgType::Ok;
	FText Message;
	FText Title;
	FCoreDelegates::ModalErrorMessage = FCoreDelegates::FOnModalMessageBox::CreateLambda(
		[&](EAppMsgType::Type InKind, const FText& InMessage, const FText& InTitle)
		{
			Kind = InKind;
			Message = InMessage;
			Title = InTitle;
			return EAppReturnType::Yes;
		});
	const FText AskedTitle = FText::FromString(TEXT("Please decide"));
	const FText Asked = FText::FromString(TEXT("Go on?"));
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::YesNo, Asked, &AskedTitle), EAppReturnType::Yes);
	EXPECT_EQ(Kind, EAppMsgType::YesNo);
	EXPECT_TRUE(Message.IdenticalTo(Asked));
	EXPECT_TRUE(Title.IdenticalTo(AskedTitle));
}

TEST_F(FMessageDialogTest, HandsOverAnEmptyTitleWhereThereIsNone)
{
	bool bEmpty = false;
	FCoreDelegates::ModalErrorMessage = FCoreDelegates::FOnModalMessageBox::CreateLambda(
		[&bEmpty](EAppMsgType::Type, const FText&, const FText& Title)
		{
			bEmpty = Title.IsEmpty();
			return EAppReturnType::Ok;
		});
	FMessageDialog::Open(EAppMsgType::Ok, FText::FromString(TEXT("Done")));
	EXPECT_TRUE(bEmpty);
}

TEST_F(FMessageDialogTest, PrintsTheMessageWhenNobodyShowsIt)
{
	const FText Title = FText::FromString(TEXT("Version"));
	testing::internal::CaptureStderr();
	FMessageDialog::Open(EAppMsgType::Ok, FText::FromString(TEXT("1.0 \n4.27 \u00E4 %s")));
	FMessageDialog::Open(EAppMsgType::Ok, FText::FromString(TEXT("2.0")), &Title);
	EXPECT_EQ(testing::internal::GetCapturedStderr(), "1.0 \n4.27 \u00E4 %s\nVersion: 2.0\n");
}

TEST_F(FMessageDialogTest, AnswersWithWhatStartsNothingWhenNobodyShowsIt)
{
	const FText Message = FText::FromString(TEXT("Delete?"));
	testing::internal::CaptureStderr();
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::Ok, Message), EAppReturnType::Ok);
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::YesNo, Message), EAppReturnType::No);
	EXPECT_EQ(FMessageDialog::Open(EAppMsgType::OkCancel, Message), EAppReturnType::Cancel);
	testing::internal::GetCapturedStderr();
}
