// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "AssetToolsFault.h"
#include "TextDescription.h"
#include "UserInput.h"

#include "Fonts/SlateFontInfo.h"
#include "Input/Events.h"
#include "Internationalization/TextLocalizationManager.h"
#include "Layout/Children.h"
#include "Standalone/TextFormatInspector.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

// Fonts, colours, justification and slots of the wizard: the stand-alone widgets tell them, the engine's own do not.

namespace
{
	void Collect(const TSharedRef<SWidget>& Widget, const FName& Type, TArray<TSharedRef<SWidget>>& OutFound)
	{
		if (Widget->GetType() == Type)
		{
			OutFound.Add(Widget);
		}
		for (int32 Index = 0; Index < Widget->GetChildren()->Num(); ++Index)
		{
			Collect(Widget->GetChildren()->GetChildAt(Index), Type, OutFound);
		}
	}

	bool IsFont(const FSlateFontInfo& Font, const char* Typeface, int32 Size)
	{
		return Font.TypefaceFontName == FName(Typeface) && Font.Size == Size;
	}
}

class FWizardLooks : public FWizardFixture
{
protected:
	/** The wizard's texts in tree order. */
	enum EText
	{
		Title,
		Description,
		NameLabel,
		Warning,
		CreateCaption,
		DoneMessage,
		DoneCaption,
	};
	/** The vertical boxes in tree order. */
	enum EBox
	{
		Column,
		Header,
		CreatorPage,
		DonePage,
	};

	FWizardLooks() { OpenWizard(); }
	TArray<TSharedRef<SWidget>> FindAll(const char* Type) const
	{
		TArray<TSharedRef<SWidget>> Found;
		Collect(Wizard.ToSharedRef(), FName(Type), Found);
		return Found;
	}
	const STextBlock& GetText(EText Index) const
	{
		return static_cast<const STextBlock&>(FindAll("STextBlock")[Index].Get());
	}
	void ExpectSlot(EBox Box, int32 Index, bool bAuto, EHorizontalAlignment HAlign, const FMargin& Padding) const
	{
		SWidget& Widget = FindAll("SVerticalBox")[Box].Get();
		const auto& Slot = static_cast<const SBoxPanel::FSlot&>(Widget.GetChildren()->GetSlotAt(Index));
		EXPECT_EQ(Slot.SizeParam.SizeRule == FSizeParam::SizeRule_Auto, bAuto) << Box << " " << Index;
		EXPECT_EQ(Slot.HAlignment, HAlign) << Box << " " << Index;
		EXPECT_EQ(Slot.VAlignment, VAlign_Fill) << Box << " " << Index;
		EXPECT_TRUE(Slot.SlotPadding.Get() == Padding) << Box << " " << Index;
	}
};

TEST_F(FWizardLooks, GiveEachTextItsFont)
{
	EXPECT_TRUE(IsFont(GetText(Title).GetFont(), "Regular", 19));
	EXPECT_TRUE(IsFont(GetText(Description).GetFont(), "Regular", 10));
	EXPECT_TRUE(IsFont(GetText(NameLabel).GetFont(), "Regular", 10));
	EXPECT_TRUE(IsFont(GetText(Warning).GetFont(), "Italic", 8));
	EXPECT_TRUE(IsFont(GetText(DoneMessage).GetFont(), "Regular", 12));
}

TEST_F(FWizardLooks, LeaveTheButtonsCaptionsTheirDefaultFont)
{
	const TSharedRef<STextBlock> Plain = SNew(STextBlock);
	EXPECT_TRUE(GetText(CreateCaption).GetFont() == Plain->GetFont());
	EXPECT_TRUE(GetText(DoneCaption).GetFont() == Plain->GetFont());
}

TEST_F(FWizardLooks, CentreTitleMessageAndCaptions)
{
	for (const EText Text : {Title, CreateCaption, DoneMessage, DoneCaption})
	{
		EXPECT_EQ(GetText(Text).GetJustification(), ETextJustify::Center) << Text;
	}
	for (const EText Text : {Description, NameLabel, Warning})
	{
		EXPECT_EQ(GetText(Text).GetJustification(), ETextJustify::Left) << Text;
	}
}

TEST_F(FWizardLooks, WarnInRed)
{
	EXPECT_TRUE(GetText(Warning).GetColorAndOpacity().GetSpecifiedColor() == FLinearColor::Red);
}

TEST_F(FWizardLooks, TellASuccessInOpaqueWhite)
{
	Create("Main");
	EXPECT_TRUE(GetText(DoneMessage).GetColorAndOpacity().GetSpecifiedColor() == FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
}

TEST_F(FWizardLooks, ShowTheStyleSetsWizardPicture)
{
	const TArray<TSharedRef<SWidget>> Images = FindAll("SImage");
	ASSERT_EQ(Images.Num(), 1);
	EXPECT_EQ(static_cast<const SImage&>(Images[0].Get()).GetImage(),
		FSlateStyleRegistry::FindSlateStyle("QuillonEditorStyle")->GetBrush("ZAVQuillon.WizardIcon_128x"));
}

TEST_F(FWizardLooks, SizeAlignAndPadEachSlot)
{
	const FMargin None(0.0f);
	ExpectSlot(Column, 0, true, HAlign_Fill, FMargin(0.0f, 0.0f, 0.0f, 50.0f));
	ExpectSlot(Column, 1, false, HAlign_Fill, None);
	ExpectSlot(Header, 0, false, HAlign_Center, FMargin(0.0f, 0.0f, 0.0f, 30.0f));
	ExpectSlot(Header, 1, true, HAlign_Center, FMargin(0.0f, 0.0f, 0.0f, 15.0f));
	ExpectSlot(Header, 2, true, HAlign_Center, None);
	ExpectSlot(CreatorPage, 0, true, HAlign_Fill, FMargin(0.0f, 0.0f, 0.0f, 10.0f));
	ExpectSlot(CreatorPage, 1, true, HAlign_Fill, None);
	ExpectSlot(CreatorPage, 2, true, HAlign_Fill, FMargin(0.0f, 5.0f, 0.0f, 0.0f));
	ExpectSlot(CreatorPage, 3, true, HAlign_Fill, None);
	ExpectSlot(DonePage, 0, true, HAlign_Center, FMargin(0.0f, 0.0f, 0.0f, 20.0f));
	ExpectSlot(DonePage, 1, true, HAlign_Fill, None);
}

TEST_F(FWizardLooks, CentreTheColumnInAScrollBoxThatFillsTheTab)
{
	const TArray<TSharedRef<SWidget>> ScrollBoxes = FindAll("SScrollBox");
	ASSERT_EQ(ScrollBoxes.Num(), 1);
	const auto& Slot = static_cast<const SScrollBox::FSlot&>(ScrollBoxes[0]->GetChildren()->GetSlotAt(0));
	EXPECT_EQ(Slot.HAlignment, HAlign_Center);
	EXPECT_EQ(Slot.VAlignment, VAlign_Center);
	FArrangedChildren Arranged(EVisibility::Visible);
	Wizard->SlatePrepass(1.0f);
	Wizard->ArrangeChildren(FGeometry::MakeRoot(FVector2D(420.0f, 800.0f), FSlateLayoutTransform()), Arranged);
	ASSERT_EQ(Arranged.Num(), 1);
	EXPECT_TRUE(Arranged[0].Geometry.GetLocalSize() == FVector2D(420.0f, 800.0f));
	FArrangedChildren Columns(EVisibility::Visible);
	ScrollBoxes[0]->ArrangeChildren(Arranged[0].Geometry, Columns);
	EXPECT_EQ(Columns[0].Geometry.GetAbsolutePosition().X, 60.0f);
	EXPECT_EQ(Columns[0].Geometry.GetLocalSize().X, 300.0f);
}

TEST_F(FWizardLooks, WrapATitleThatATranslationMakesLonger)
{
	FindAll("SBox")[0]->SlatePrepass(1.0f);
	const float OneLine = GetText(Title).GetDesiredSize().Y;
	FTextLocalizationManager::Get().SetTable(
		[](const FString&, const FString&, const FString& Source) -> TOptional<FString>
		{ return Source + TEXT(" ") + Source + TEXT(" ") + Source; });
	FindAll("SBox")[0]->SlatePrepass(1.0f);
	EXPECT_GT(GetText(Title).GetDesiredSize().Y, 1.5f * OneLine);
	EXPECT_LE(GetText(Title).GetDesiredSize().X, 300.0f);
	FTextLocalizationManager::Get().SetTable(FTextLocalizationManager::FTable());
}

TEST_F(FWizardLooks, NameTheMessageOfASuccessByItsKeyAndTheStream)
{
	Create("Main");
	ASSERT_NE(FTextFormatInspector::GetPattern(GetText(DoneMessage).GetText()), nullptr);
	EXPECT_EQ(DescribeText(*FTextFormatInspector::GetPattern(GetText(DoneMessage).GetText())),
		"CineStreamWizard,DoneText,Cinestream '{0}' created!");
	EXPECT_TRUE((*FTextFormatInspector::GetArguments(GetText(DoneMessage).GetText()))[0].ToString().Equals("Main"));
	EXPECT_EQ(DescribeText(GetText(DoneCaption).GetText()),
		"CineStreamWizard,DoneButtonText,Create Another Cinestream Output");
}

TEST_F(FWizardLooks, NameTheMessageOfAFailureByTheSameKeys)
{
	const FAssetToolsFault Fault(FAssetToolsFault::EKind::ReturnNull);
	Create("Main");
	ASSERT_NE(FTextFormatInspector::GetPattern(GetText(DoneMessage).GetText()), nullptr);
	EXPECT_EQ(DescribeText(*FTextFormatInspector::GetPattern(GetText(DoneMessage).GetText())),
		"CineStreamWizard,DoneText,ERROR: Failed to create Cinestream '{0}'!");
	EXPECT_EQ(DescribeText(GetText(DoneCaption).GetText()), "CineStreamWizard,DoneButtonText,Try Again");
}

TEST_F(FWizardLooks, TellASuccessInWhiteAfterAFailureInRed)
{
	{
		const FAssetToolsFault Fault(FAssetToolsFault::EKind::ReturnNull);
		Create("Main");
	}
	EXPECT_TRUE(GetText(DoneMessage).GetColorAndOpacity().IsColorSpecified());
	EXPECT_TRUE(GetText(DoneMessage).GetColorAndOpacity().GetSpecifiedColor() == FLinearColor::Red);
	Click("Try Again");
	Create("Main");
	EXPECT_TRUE(GetText(DoneMessage).GetColorAndOpacity().IsColorSpecified());
	EXPECT_TRUE(GetText(DoneMessage).GetColorAndOpacity().GetSpecifiedColor() == FLinearColor::White);
}

TEST_F(FWizardLooks, NameTheCreateButtonsWarningByTheSameKeyAsTheChecks)
{
	Pages->PressButton();
	EXPECT_EQ(
		DescribeText(GetText(Warning).GetText()), "CineStreamWizard,StreamName_Warning,! Stream Name cannot be empty.");
}

TEST_F(FWizardLooks, KeepAWarningThatShowedWhenThePageIsRestarted)
{
	Create("Main");
	// No user can type on the done page; the box hears it all the same.
	SEditableTextBox& Box = static_cast<SEditableTextBox&>(FindAll("SEditableTextBox")[0].Get());
	Box.SelectAllText();
	Box.OnKeyChar(FGeometry(), FCharacterEvent(TEXT(' '), FModifierKeysState(), 0, false));
	Click("Create Another Cinestream Output");
	EXPECT_EQ(GetWarning(), "! Stream Name cannot be empty.");
}
