// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

#include <limits>

#include "UObject/Package.h"

namespace
{
	struct FTextPanel : FTestPanel
	{
		FTextPanel() : Object(Make<UPanelObject>(TEXT("A"))) { Show({&Object}); }

		std::string Get(const TCHAR* Path) const
		{
			FString Text = TEXT("kept");
			const FPropertyAccess::Result Result = Handle(Path)->GetValueAsFormattedString(Text);
			return Result == FPropertyAccess::Success ? ToString(Text) : "refused, " + ToString(Text);
		}
		/** What the property shows after the text was entered. */
		std::string Set(const TCHAR* Path, const FString& Text) const
		{
			const size_t NumHeard = UPanelObject::Heard.size();
			const FPropertyAccess::Result Result = Handle(Path)->SetValueFromFormattedString(Text);
			const bool bTold = UPanelObject::Heard.size() != NumHeard;
			EXPECT_EQ(bTold, Result == FPropertyAccess::Success);
			return bTold ? Get(Path) : "refused";
		}

		UPanelObject& Object;
	};
}

TEST(IPropertyHandle, ShowsValuesAsTheyStandInAnEditBox)
{
	FTextPanel Panel;
	Panel.Object.Text = TEXT("two\nlines");
	Panel.Object.Title = NSLOCTEXT("N", "K", "title");
	Panel.Object.Count = -2147483647 - 1;
	EXPECT_EQ(Panel.Get(TEXT("bShown")), "True");
	EXPECT_EQ(Panel.Get(TEXT("bFixed")), "False");
	EXPECT_EQ(Panel.Get(TEXT("Count")), "-2147483648");
	EXPECT_EQ(Panel.Get(TEXT("Ratio")), "0.25");
	EXPECT_EQ(Panel.Get(TEXT("Text")), "two\nlines");
	EXPECT_EQ(Panel.Get(TEXT("Word")), "None");
	EXPECT_EQ(Panel.Get(TEXT("Title")), "title");
	EXPECT_EQ(Panel.Get(TEXT("Partner")), "None");
	Panel.Object.Partner = &Panel.Object;
	EXPECT_EQ(Panel.Get(TEXT("Partner")), "/Game/Panel.A");
	EXPECT_EQ(Panel.Get(TEXT("Line")), "refused, kept");
	EXPECT_EQ(Panel.Get(TEXT("Numbers")), "refused, kept");
}

TEST(IPropertyHandle, ShowsTheShortestNumberThatReadsBackTheSame)
{
	FTextPanel Panel;
	for (const float Number : {0.1f, 1.0f / 3.0f, 16777216.0f, 1e-30f, -3.4028235e38f,
			 std::numeric_limits<float>::min(), std::numeric_limits<float>::denorm_min(), 0.0f, 100.0f})
	{
		Panel.Object.Ratio = Number;
		const std::string Text = Panel.Get(TEXT("Ratio"));
		Panel.Object.Ratio = -1.0f;
		Panel.Set(TEXT("Ratio"), Text.c_str());
		EXPECT_EQ(Panel.Object.Ratio, Number) << Text;
	}
	Panel.Object.Ratio = 0.1f;
	EXPECT_EQ(Panel.Get(TEXT("Ratio")), "0.1");
}

TEST(IPropertyHandle, TakesNumbersWholeAndInRange)
{
	FTextPanel Panel;
	EXPECT_EQ(Panel.Set(TEXT("Count"), TEXT("-12")), "-12");
	EXPECT_EQ(Panel.Set(TEXT("Count"), TEXT("2147483647")), "2147483647");
	EXPECT_EQ(Panel.Set(TEXT("Ratio"), TEXT("1.5e2")), "150");
	EXPECT_EQ(Panel.Set(TEXT("Ratio"), TEXT("-.5")), "-0.5");
	for (const TCHAR* Text : {TEXT(""), TEXT(" 1"), TEXT("1 "), TEXT("1.5"), TEXT("2147483648"), TEXT("-2147483649"),
			 TEXT("0x10"), TEXT("1,000"), TEXT("--1"), TEXT("one"), TEXT("\u0661")})
	{
		EXPECT_EQ(Panel.Set(TEXT("Count"), Text), "refused") << TCHAR_TO_UTF8(Text);
	}
	for (const TCHAR* Text : {TEXT(""), TEXT("nan"), TEXT("inf"), TEXT("-infinity"), TEXT("1e39"), TEXT("1.5f"),
			 TEXT("0,5"), TEXT("1e"), TEXT(" 1")})
	{
		EXPECT_EQ(Panel.Set(TEXT("Ratio"), Text), "refused") << TCHAR_TO_UTF8(Text);
	}
	const TCHAR Nul[] = {TEXT('1'), 0, TEXT('2')};
	EXPECT_EQ(Panel.Set(TEXT("Count"), FString(3, Nul)), "refused");
	EXPECT_EQ(Panel.Object.Count, 2147483647);
	EXPECT_EQ(Panel.Object.Ratio, -0.5f);
}

TEST(IPropertyHandle, TakesTextsAndNames)
{
	FTextPanel Panel;
	EXPECT_EQ(Panel.Set(TEXT("bShown"), TEXT("false")), "False");
	EXPECT_EQ(Panel.Set(TEXT("bShown"), TEXT("TRUE")), "True");
	EXPECT_EQ(Panel.Set(TEXT("bShown"), TEXT("1")), "refused");
	EXPECT_EQ(Panel.Set(TEXT("bShown"), TEXT("")), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Text"), TEXT(" {0}\n ")), " {0}\n ");
	EXPECT_EQ(Panel.Set(TEXT("Text"), TEXT("")), "");
	EXPECT_EQ(Panel.Set(TEXT("Title"), TEXT("{0}")), "{0}");
	EXPECT_EQ(Panel.Set(TEXT("Word"), TEXT("a word_2")), "a word_2");
	EXPECT_EQ(Panel.Set(TEXT("Word"), TEXT("")), "None");
	const std::u16string Long(NAME_SIZE - 1, u'x');
	EXPECT_EQ(Panel.Set(TEXT("Word"), Long.c_str()), std::string(NAME_SIZE - 1, 'x'));
	EXPECT_EQ(Panel.Set(TEXT("Word"), (Long + u"x").c_str()), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Line"), TEXT("1")), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Numbers"), TEXT("1")), "refused");
}

TEST(IPropertyHandle, TakesThePathOfAnObjectOfTheClass)
{
	FTextPanel Panel;
	UPackage* Asset = CreatePackage(TEXT("/Game/Folder/Asset"));
	UPanelChild* Child = NewObject<UPanelChild>(Asset, TEXT("Asset"), RF_Public);
	UPanelObject* Inner = NewObject<UPanelObject>(Child, TEXT("Inner"), RF_Public);
	NewObject<UPanelPart>(Asset, TEXT("Part"), RF_Public);
	EXPECT_EQ(Panel.Set(TEXT("Partner"), TEXT("/Game/Folder/Asset")), "/Game/Folder/Asset.Asset");
	EXPECT_EQ(Panel.Object.Partner, Child);
	EXPECT_EQ(Panel.Set(TEXT("Partner"), TEXT("/game/panel.a")), "/Game/Panel.A");
	EXPECT_EQ(Panel.Set(TEXT("Partner"), Inner->GetPathName()), FTestPanel::ToString(Inner->GetPathName()));
	for (const TCHAR* Text : {TEXT("/Game/Folder/Nobody"), TEXT("/Game/Folder/Asset.Part"), TEXT("Asset"), TEXT("/"),
			 TEXT("."), TEXT("/Game/Folder/Asset."), TEXT(" None"), TEXT("/Game/Folder/")})
	{
		EXPECT_EQ(Panel.Set(TEXT("Partner"), Text), "refused") << TCHAR_TO_UTF8(Text);
	}
	// Longer than any name, in each part of a path, by one and by far.
	const std::u16string Long(NAME_SIZE, u'x');
	EXPECT_EQ(Panel.Set(TEXT("Partner"), Long.c_str()), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Partner"), (u"/" + Long).c_str()), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Partner"), (u"/Game/Folder/Asset.Asset:" + Long).c_str()), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Partner"), (u"/Game/Folder/Asset.Asset:" + Long.substr(1)).c_str()), "refused");
	EXPECT_EQ(Panel.Object.Partner, Inner);
	const FString Longest = (u"/Game/Panel." + Long.substr(1)).c_str();
	Panel.Make<UPanelObject>(Long.substr(1).c_str());
	EXPECT_EQ(Panel.Set(TEXT("Partner"), Longest), FTestPanel::ToString(Longest));
	Child->MarkPendingKill();
	EXPECT_EQ(Panel.Set(TEXT("Partner"), TEXT("/Game/Folder/Asset")), "refused");
	EXPECT_EQ(Panel.Set(TEXT("Partner"), TEXT("none")), "None");
	EXPECT_EQ(Panel.Object.Partner, nullptr);
	Panel.Object.Partner = Inner;
	EXPECT_EQ(Panel.Set(TEXT("Partner"), TEXT("")), "None");
}
