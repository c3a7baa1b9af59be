// Copyright Corvane. MIT License.
#include "WizardPages.h"

#include "EditorMenus.h"
#include "EngineText.h"
#include "Framework/Docking/TabManager.h"
#include "UserInput.h"
#include "WidgetFinder.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Each typed character checks the name anew; beyond this length a user would paste as well. */
	constexpr int32 LongestTypedName = 1000;

	bool CanBeTyped(const FString& Name)
	{
		for (int32 Index = 0; Index < Name.Len(); ++Index)
		{
			if (Name[Index] < TEXT(' ') || Name[Index] == 0x7F)
			{
				return false;
			}
		}
		return Name.Len() <= LongestTypedName;
	}
}

TSharedPtr<SWidget> FWizardPages::Open(std::string& OutError)
{
	if (!FEditorMenus::Choose(TEXT("Corvane"), TEXT("Cine Stream Wizard"), OutError))
	{
		return nullptr;
	}
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId("CineStreamWizard"));
	if (!Tab.IsValid())
	{
		OutError = "the menu opens no wizard";
		return nullptr;
	}
	return Tab->GetContent();
}

bool FWizardPages::EnterName(const FString& Name) const
{
	const TSharedPtr<SEditableTextBox> Box = FindBox();
	if (!Box.IsValid() || !FUserInput::Focus(Box.ToSharedRef()))
	{
		return false;
	}
	// What stands in the box is typed over.
	Box->SelectAllText();
	CanBeTyped(Name) ? FUserInput::Type(Name) : FUserInput::Paste(Name);
	return Box->GetText().ToString().Equals(Name);
}

std::optional<std::string> FWizardPages::GetWarning() const
{
	const TSharedPtr<SEditableTextBox> Box = FindBox();
	const TSharedPtr<STextBlock> Line =
		Box.IsValid() ? FWidgetFinder(Content).FindTextAfter(Box.ToSharedRef()) : nullptr;
	return Line.IsValid() ? std::optional<std::string>(FEngineText::ForDisplay(Line->GetText().ToString()))
						  : std::nullopt;
}

bool FWizardPages::PressButton() const
{
	const TArray<TSharedRef<SButton>> Buttons = FWidgetFinder(Content).GetButtons();
	return Buttons.Num() > 0 && FUserInput::Click(Buttons[0]);
}

std::string FWizardPages::GetMessage() const
{
	if (FindBox().IsValid())
	{
		return GetWarning().value_or(std::string());
	}
	// The header's texts stand above the message.
	const TArray<TSharedRef<STextBlock>> Texts = FWidgetFinder(Content).GetTexts();
	return Texts.Num() > 0 ? FEngineText::ForDisplay(Texts.Last()->GetText().ToString()) : std::string();
}

TSharedPtr<SEditableTextBox> FWizardPages::FindBox() const
{
	const TArray<TSharedRef<SEditableTextBox>> Boxes = FWidgetFinder(Content).GetEditBoxes();
	return Boxes.Num() > 0 ? TSharedPtr<SEditableTextBox>(Boxes[0]) : nullptr;
}
