// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Utf8.h"

#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"

#define LOCTEXT_NAMESPACE "TextTest"

TEST(FText, IsEmptyWhenDefaultMade)
{
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_EQ(Utf8(FText().ToString()), "");
	EXPECT_TRUE(FText::GetEmpty().IsEmpty());
}

TEST(FText, FromStringShowsTheStringAndHasNoIdentity)
{
	const FText Text = FText::FromString(FString(TEXT("Stage {0}")));
	EXPECT_EQ(Utf8(Text.ToString()), "Stage {0}");
	EXPECT_FALSE(Text.IsEmpty());
	EXPECT_FALSE(FTextInspector::GetNamespace(Text).IsSet());
	EXPECT_FALSE(FTextInspector::GetKey(Text).IsSet());
	EXPECT_EQ(Utf8(*FTextInspector::GetSourceString(Text)), "Stage {0}");
}

TEST(FText, AsNumberGroupsDigitsAndHasNoIdentity)
{
	EXPECT_EQ(Utf8(FText::AsNumber(0).ToString()), "0");
	EXPECT_EQ(Utf8(FText::AsNumber(999).ToString()), "999");
	EXPECT_EQ(Utf8(FText::AsNumber(4294967295U).ToString()), "4,294,967,295");
	EXPECT_EQ(Utf8(FText::AsNumber(-1234).ToString()), "-1,234");
	EXPECT_EQ(Utf8(FText::AsNumber(INT64_MIN).ToString()), "-9,223,372,036,854,775,808");
	EXPECT_FALSE(FTextInspector::GetKey(FText::AsNumber(4)).IsSet());
}

TEST(FText, LiteralCarriesNamespaceKeyAndSource)
{
	const FText Text = LOCTEXT("Greeting", "Hello");
	EXPECT_EQ(Utf8(FTextInspector::GetNamespace(Text).GetValue()), "TextTest");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Text).GetValue()), "Greeting");
	EXPECT_EQ(Utf8(*FTextInspector::GetSourceString(Text)), "Hello");
	EXPECT_EQ(Utf8(FTextInspector::GetDisplayString(Text)), "Hello");
}

TEST(FText, LiteralWithNamespaceTakesThatNamespace)
{
	const FText Text = NSLOCTEXT("Elsewhere", "Greeting", "Hello");
	EXPECT_EQ(Utf8(FTextInspector::GetNamespace(Text).GetValue()), "Elsewhere");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Text).GetValue()), "Greeting");
}

TEST(FText, CultureInvariantLiteralHasNoIdentity)
{
	const FText Text = INVTEXT("42 %");
	EXPECT_EQ(Utf8(Text.ToString()), "42 %");
	EXPECT_FALSE(FTextInspector::GetKey(Text).IsSet());
}

TEST(FText, OneKeyMayStandWithSeveralSources)
{
	const FText First = LOCTEXT("Shared", "Done");
	const FText Second = LOCTEXT("Shared", "Finished");
	EXPECT_EQ(Utf8(First.ToString()), "Done");
	EXPECT_EQ(Utf8(Second.ToString()), "Finished");
	EXPECT_FALSE(First.IdenticalTo(Second));
}

TEST(FText, IsIdenticalToTheSameLiteralElsewhere)
{
	EXPECT_TRUE(LOCTEXT("Twice", "Same").IdenticalTo(NSLOCTEXT("TextTest", "Twice", "Same")));
}

TEST(FText, IsNotIdenticalAcrossNamespacesOrKeys)
{
	const FText Text = LOCTEXT("Key", "Same");
	EXPECT_FALSE(Text.IdenticalTo(NSLOCTEXT("Other", "Key", "Same")));
	EXPECT_FALSE(Text.IdenticalTo(LOCTEXT("OtherKey", "Same")));
	EXPECT_FALSE(Text.IdenticalTo(LOCTEXT("KEY", "Same"))) << "identities tell case apart";
}

TEST(FText, IsIdenticalToItsCopyOnlyWhenWithoutIdentity)
{
	const FText Text = FText::FromString(TEXT("a"));
	const FText Copy = Text;
	EXPECT_TRUE(Text.IdenticalTo(Copy));
	EXPECT_FALSE(Text.IdenticalTo(FText::FromString(TEXT("a"))));
}

TEST(FText, CopySharesItsData)
{
	const FText Text = FText::FromString(TEXT("a long text that would not fit into any small buffer"));
	const FText Copy = Text;
	EXPECT_EQ(&Text.ToString(), &Copy.ToString());
}

TEST(FText, EqualToComparesWhatIsDisplayed)
{
	EXPECT_TRUE(LOCTEXT("Here", "Same").EqualTo(FText::FromString(TEXT("Same"))));
	EXPECT_FALSE(FText::FromString(TEXT("same")).EqualTo(FText::FromString(TEXT("Same"))));
	EXPECT_TRUE(FText().EqualTo(FText::FromString(FString())));
	EXPECT_FALSE(FText().EqualTo(FText::FromString(TEXT("a"))));
}

TEST(FText, EqualToLeavesOutWhatTheLevelLeavesOut)
{
	const FText Plain = FText::FromString(TEXT("role"));
	const FText Accented = FText::FromString(TEXT("r\u00F4le"));
	const FText Capital = FText::FromString(TEXT("Role"));
	EXPECT_TRUE(Plain.EqualTo(Accented, ETextComparisonLevel::Primary));
	EXPECT_FALSE(Plain.EqualTo(Accented, ETextComparisonLevel::Secondary));
	EXPECT_TRUE(Plain.EqualTo(Capital, ETextComparisonLevel::Secondary));
	EXPECT_FALSE(Plain.EqualTo(Capital, ETextComparisonLevel::Tertiary));
}

TEST(FText, EqualToTakesComposedAndDecomposedLettersForOne)
{
	EXPECT_TRUE(FText::FromString(TEXT("\u00F4")).EqualTo(FText::FromString(TEXT("o\u0302"))));
}

TEST(FText, ComparesByCollationNotByUnits)
{
	const auto Compare = [](const TCHAR* Left, const TCHAR* Right)
	{ return FText::FromString(Left).CompareTo(FText::FromString(Right)); };
	EXPECT_LT(Compare(TEXT("apple"), TEXT("Banana")), 0);
	EXPECT_GT(Compare(TEXT("b"), TEXT("A")), 0);
	EXPECT_LT(Compare(TEXT("a"), TEXT("A")), 0);
	EXPECT_LT(Compare(TEXT("\u00E9cole"), TEXT("zoo")), 0);
	EXPECT_EQ(Compare(TEXT("zoo"), TEXT("zoo")), 0);
	EXPECT_LT(Compare(TEXT(""), TEXT("a")), 0);
}

TEST(FText, IsEmptyOrWhitespaceForBlanksTabsAndLineBreaks)
{
	EXPECT_TRUE(FText().IsEmptyOrWhitespace());
	EXPECT_TRUE(FText::FromString(TEXT(" \t\r\n\u2003\u3000")).IsEmptyOrWhitespace());
}

TEST(FText, IsNotWhitespaceWithAnyOtherCharacter)
{
	EXPECT_FALSE(FText::FromString(TEXT("  a ")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(TEXT("\u200B")).IsEmptyOrWhitespace()) << "zero-width space";
}

TEST(FText, NoBreakSpacesAreNoWhitespace)
{
	EXPECT_FALSE(FText::IsWhitespace(TEXT('\u00A0')));
	EXPECT_FALSE(FText::IsWhitespace(TEXT('\u2007')));
	EXPECT_FALSE(FText::IsWhitespace(TEXT('\u202F')));
	EXPECT_FALSE(FText::FromString(TEXT(" \u00A0 ")).IsEmptyOrWhitespace());
}

#undef LOCTEXT_NAMESPACE
