// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <regex>

#include "Utf8.h"

#include "Containers/Map.h"
#include "UObject/NameTypes.h"

TEST(FName, ComparesWithoutRegardToAsciiCase)
{
	EXPECT_TRUE(FName(TEXT("SpoutSenders")) == FName(TEXT("spoutSENDERS")));
	EXPECT_FALSE(FName(TEXT("a")) == FName(TEXT("b")));
	EXPECT_TRUE(FName(TEXT("\u00E4")) != FName(TEXT("\u00C4")));
}

TEST(FName, KeepsEachInstancesOwnSpelling)
{
	const FName First(TEXT("OwnSpelling"));
	const FName Second(TEXT("ownSPELLING"));
	EXPECT_EQ(Utf8(First.ToString()), "OwnSpelling");
	EXPECT_EQ(Utf8(Second.ToString()), "ownSPELLING");
	EXPECT_EQ(Utf8(FName(TEXT("ownSPELLING")).ToString()), "ownSPELLING") << "a spelling that is known by now";
}

TEST(FName, IsFoundInMapsWhateverItsSpelling)
{
	TMap<FName, int32> Numbers;
	Numbers.Add(TEXT("Key_3"), 1);
	EXPECT_TRUE(Numbers.Contains(TEXT("KEY_3")));
	EXPECT_FALSE(Numbers.Contains(TEXT("KEY_4")));
}

TEST(FName, SplitsATrailingNumber)
{
	const FName Name(TEXT("Sender_12"));
	EXPECT_EQ(Utf8(Name.GetPlainNameString()), "Sender");
	EXPECT_EQ(Name.GetNumber(), 13);
	EXPECT_EQ(Utf8(Name.ToString()), "Sender_12");
	EXPECT_EQ(FName(TEXT("Sender_0")).GetNumber(), 1);
}

TEST(FName, LeavesWhatIsNoTrailingNumber)
{
	for (const char* const Text :
		{"Sender_012", "Sender_00", "Sender12", "WizardIcon_16x", "Sender_", "_5", "5", "Sender_99999999999"})
	{
		EXPECT_EQ(FName(Text).GetNumber(), 0) << Text;
		EXPECT_EQ(Utf8(FName(Text).ToString()), Text);
	}
}

TEST(FName, NoneIsEmptyNamesAndDefault)
{
	EXPECT_TRUE(FName().IsNone());
	EXPECT_TRUE(FName(NAME_None).IsNone());
	EXPECT_TRUE(FName(TEXT("")).IsNone());
	EXPECT_TRUE(FName(TEXT("none")).IsNone());
	EXPECT_FALSE(FName(TEXT("None_1")).IsNone());
	EXPECT_EQ(Utf8(FName().ToString()), "None");
}

TEST(FName, FindGivesNoneForANameThatNobodyAdded)
{
	EXPECT_TRUE(FName(TEXT("NobodyAddedThis"), FNAME_Find).IsNone());
	EXPECT_TRUE(FName(TEXT("NobodyAddedThis"), FNAME_Find).IsNone()) << "searching does not add";
}

TEST(FName, FindGivesANameThatWasAddedInAnotherSpelling)
{
	const FName Added(TEXT("AddedForFind"));
	EXPECT_TRUE(FName(TEXT("ADDEDFORFIND"), FNAME_Find) == Added);
}

TEST(FName, SortsAlphabeticallyIgnoringCase)
{
	EXPECT_TRUE(FName(TEXT("alpha")).LexicalLess(TEXT("Beta")));
	EXPECT_FALSE(FName(TEXT("Beta")).LexicalLess(TEXT("alpha")));
}

TEST(FName, LongestNameIs1023Units)
{
	const FString Longest = FromUtf8(std::string(1023, 'x'));
	EXPECT_EQ(FName(*Longest).ToString().Len(), 1023);
	EXPECT_EXIT(
		FName(*(Longest + TEXT("x"))), ::testing::ExitedWithCode(3), "Assertion failed: .*\n.*max length exceeded");
}

TEST(FName, SplitsACodesNameIntoWords)
{
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("ActorLocation"), false)), "Actor Location");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("SceneCapture2D"), false)), "Scene Capture 2D");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("HTTPOutput"), false)), "HTTPOutput");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("use_the_size"), false)), "Use The Size");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("_Hidden__A"), false)), "Hidden A");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("Two Words and 3"), false)), "Two Words and 3");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT(""), true)), "");
}

TEST(FName, DropsTheMarkOfABoolOnlyFromABoolsName)
{
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("bIsActive"), true)), "Is Active");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("bIsActive"), false)), "B Is Active");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("blocked"), true)), "Blocked");
	EXPECT_EQ(Utf8(FName::NameToDisplayString(TEXT("b"), true)), "B");
}

RC_GTEST_PROP(FNameProperty, ReadsBackAsItWasWritten, ())
{
	const std::string Text =
		*rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::element('a', 'B', '_', '0', '1', '9')));
	RC_ASSERT(Utf8(FName(Text.c_str()).ToString()) == Text);
}

RC_GTEST_PROP(FNameProperty, ComparesAsItsStringsDo, ())
{
	const auto Letters = rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::element('a', 'A', '_', '0', '1')));
	const FString First = FromUtf8(*Letters);
	const FString Second = FromUtf8(*Letters);
	RC_ASSERT((FName(*First) == FName(*Second)) == (First == Second));
	RC_ASSERT(First != Second || GetTypeHash(FName(*First)) == GetTypeHash(FName(*Second)));
}

RC_GTEST_PROP(FNameProperty, SplitsExactlyWhatLooksLikeANumber, ())
{
	const std::string Text =
		*rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::element('a', '_', '0', '1', '2')));
	std::smatch Match;
	const bool bSplit = std::regex_match(Text, Match, std::regex("(.+)_(0|[1-9][0-9]{0,8})"));
	const FName Name(Text.c_str());
	RC_ASSERT(Utf8(Name.GetPlainNameString()) == (bSplit ? Match[1].str() : Text));
	RC_ASSERT(Name.GetNumber() == (bSplit ? std::stoi(Match[2].str()) + 1 : 0));
}
