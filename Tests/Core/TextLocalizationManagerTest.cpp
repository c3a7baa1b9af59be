// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "AllocationCount.h"
#include "Utf8.h"

#include "Internationalization/Internationalization.h"
#include "Internationalization/TextLocalizationManager.h"

#define LOCTEXT_NAMESPACE "Localization"

namespace
{
	/** A table that shows every source between brackets, and puts the sources back at the end. */
	class FTextLocalizationManagerTest : public ::testing::Test
	{
	protected:
		virtual void TearDown() override { FTextLocalizationManager::Get().SetTable(nullptr); }

		void UseBrackets(const TCHAR* Open, const TCHAR* Close)
		{
			FTextLocalizationManager::Get().SetTable(
				[this, Open, Close](const FString&, const FString&, const FString& Source)
				{
					++NumQuestions;
					return TOptional<FString>(Open + Source + Close);
				});
		}

		int NumQuestions = 0;
	};
}

TEST_F(FTextLocalizationManagerTest, SwapChangesATextThatIsAlreadyShown)
{
	const FText Text = LOCTEXT("Swapped", "Hello");
	EXPECT_EQ(Utf8(Text.ToString()), "Hello");
	UseBrackets(TEXT("["), TEXT("]"));
	EXPECT_EQ(Utf8(Text.ToString()), "[Hello]");
	FTextLocalizationManager::Get().SetTable(nullptr);
	EXPECT_EQ(Utf8(Text.ToString()), "Hello");
}

TEST_F(FTextLocalizationManagerTest, SwapKeepsIdentityAndSource)
{
	UseBrackets(TEXT("["), TEXT("]"));
	const FText Text = LOCTEXT("Kept", "Hello");
	EXPECT_EQ(Utf8(Text.ToString()), "[Hello]");
	EXPECT_EQ(Utf8(*FTextInspector::GetSourceString(Text)), "Hello");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Text).GetValue()), "Kept");
}

TEST_F(FTextLocalizationManagerTest, TableIsAskedByNamespaceKeyAndSource)
{
	FTextLocalizationManager::Get().SetTable(
		[](const FString& Namespace, const FString& Key, const FString& Source)
		{
			const bool bKnown =
				Namespace.Equals(TEXT("Localization")) && Key.Equals(TEXT("Shared")) && Source.Equals(TEXT("Done"));
			return bKnown ? TOptional<FString>(TEXT("Fertig")) : TOptional<FString>();
		});
	EXPECT_EQ(Utf8(LOCTEXT("Shared", "Done").ToString()), "Fertig");
	EXPECT_EQ(Utf8(LOCTEXT("Shared", "Finished").ToString()), "Finished");
	EXPECT_EQ(Utf8(LOCTEXT("Other", "Done").ToString()), "Done");
	EXPECT_EQ(Utf8(NSLOCTEXT("Elsewhere", "Shared", "Done").ToString()), "Done");
}

TEST_F(FTextLocalizationManagerTest, TextsWithoutIdentityStayAsTheyAre)
{
	UseBrackets(TEXT("["), TEXT("]"));
	EXPECT_EQ(Utf8(FText::FromString(TEXT("a")).ToString()), "a");
	EXPECT_EQ(Utf8(INVTEXT("b").ToString()), "b");
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_EQ(NumQuestions, 0);
}

TEST_F(FTextLocalizationManagerTest, FormattedTextFollowsPatternAndValues)
{
	const FText Text = FText::Format(LOCTEXT("Pattern", "{0} of {1}"), LOCTEXT("Value", "One"), INVTEXT("9"));
	EXPECT_EQ(Utf8(Text.ToString()), "One of 9");
	UseBrackets(TEXT("["), TEXT("]"));
	EXPECT_EQ(Utf8(Text.ToString()), "[[One] of 9]");
}

TEST_F(FTextLocalizationManagerTest, FormattedTextWithinAnotherFollowsToo)
{
	const FText Inner = FText::Format(INVTEXT("<{0}>"), LOCTEXT("Value", "One"));
	const FText Outer = FText::Format(INVTEXT("{0}!"), Inner);
	EXPECT_EQ(Utf8(Outer.ToString()), "<One>!");
	UseBrackets(TEXT("["), TEXT("]"));
	EXPECT_EQ(Utf8(Outer.ToString()), "<[One]>!");
}

TEST_F(FTextLocalizationManagerTest, TableIsAskedOnceForAnUnchangedText)
{
	UseBrackets(TEXT("["), TEXT("]"));
	const FText Text = LOCTEXT("Asked", "Once");
	Text.ToString();
	Text.ToString();
	LOCTEXT("Asked", "Once").ToString();
	EXPECT_EQ(NumQuestions, 1);
}

TEST_F(FTextLocalizationManagerTest, ManySwapsNeverLeaveAnOldText)
{
	const FText Text = LOCTEXT("Often", "x");
	// More than the revisions that can be told apart.
	for (int Count = 0; Count < 70000; ++Count)
	{
		UseBrackets(Count % 2 == 0 ? TEXT("(") : TEXT("<"), TEXT("."));
		ASSERT_EQ(Text.ToString()[0], Count % 2 == 0 ? TEXT('(') : TEXT('<')) << Count;
		ASSERT_EQ(Utf8(FText::Format(INVTEXT("{0}"), INVTEXT("y")).ToString()), "y")
			<< "a text that is new, at " << Count;
	}
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FTextLocalizationManagerTest, UnchangedTextCostsNoAllocation)
{
	LOCTEXT("Allocated", "A text that is too long for a string's own small buffer").ToString();
	const int64 Before = FAllocationCount::Get();
	const FText Text = LOCTEXT("Allocated", "A text that is too long for a string's own small buffer");
	const FText Copy = Text;
	EXPECT_FALSE(Copy.ToString().IsEmpty());
	EXPECT_EQ(FAllocationCount::Get() - Before, 0);
}

TEST_F(FTextLocalizationManagerTest, AllocationsAreCounted)
{
	const int64 Before = FAllocationCount::Get();
	EXPECT_FALSE(FText::FromString(TEXT("A text that is too long for a string's own small buffer")).IsEmpty());
	EXPECT_GT(FAllocationCount::Get() - Before, 0);
}
#endif

#undef LOCTEXT_NAMESPACE
