// Copyright Corvane. MIT License.
#include "WidgetFinder.h"

#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	bool IsOfType(const TSharedRef<SWidget>& Widget, const ANSICHAR* Type)
	{
		return Widget->GetType() == FName(Type);
	}

	void Collect(const TSharedRef<SWidget>& Widget, TSharedPtr<SButton> Button, bool bParentsEnabled,
		TArray<FWidgetFinder::FShown>& OutShown)
	{
		if (!Widget->GetVisibility().IsVisible())
		{
			return;
		}
		const bool bEnabled = bParentsEnabled && Widget->IsEnabled();
		OutShown.Add(FWidgetFinder::FShown{Widget, Button, bEnabled});
		if (IsOfType(Widget, "SButton"))
		{
			Button = StaticCastSharedRef<SButton>(Widget);
		}
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			Collect(Children->GetChildAt(Index), Button, bEnabled, OutShown);
		}
	}

	bool IsText(const FWidgetFinder::FShown& Shown)
	{
		return !Shown.Button.IsValid() && IsOfType(Shown.Widget, "STextBlock");
	}
}

TArray<FWidgetFinder::FShown> FWidgetFinder::GetShown() const
{
	TArray<FShown> Shown;
	Collect(Root, nullptr, true, Shown);
	return Shown;
}

TArray<TSharedRef<SEditableTextBox>> FWidgetFinder::GetEditBoxes() const
{
	TArray<TSharedRef<SEditableTextBox>> Boxes;
	for (const FShown& Shown : GetShown())
	{
		if (IsOfType(Shown.Widget, "SEditableTextBox"))
		{
			Boxes.Add(StaticCastSharedRef<SEditableTextBox>(Shown.Widget));
		}
	}
	return Boxes;
}

TArray<TSharedRef<STextBlock>> FWidgetFinder::GetTexts() const
{
	TArray<TSharedRef<STextBlock>> Texts;
	for (const FShown& Shown : GetShown())
	{
		if (IsText(Shown))
		{
			Texts.Add(StaticCastSharedRef<STextBlock>(Shown.Widget));
		}
	}
	return Texts;
}

TArray<TSharedRef<SButton>> FWidgetFinder::GetButtons() const
{
	TArray<TSharedRef<SButton>> Buttons;
	for (const FShown& Shown : GetShown())
	{
		if (Shown.bEnabled && IsOfType(Shown.Widget, "SButton"))
		{
			Buttons.Add(StaticCastSharedRef<SButton>(Shown.Widget));
		}
	}
	return Buttons;
}

TSharedPtr<SButton> FWidgetFinder::FindButton(const FString& Caption) const
{
	for (const FShown& Shown : GetShown())
	{
		if (Shown.bEnabled && Shown.Button.IsValid() && IsOfType(Shown.Widget, "STextBlock") &&
			StaticCastSharedRef<STextBlock>(Shown.Widget)->GetText().ToString().Equals(Caption))
		{
			return Shown.Button;
		}
	}
	return nullptr;
}

TSharedPtr<STextBlock> FWidgetFinder::FindTextAfter(const TSharedRef<SWidget>& Widget) const
{
	bool bPassed = false;
	for (const FShown& Shown : GetShown())
	{
		if (bPassed && IsText(Shown))
		{
			return StaticCastSharedRef<STextBlock>(Shown.Widget);
		}
		bPassed = bPassed || Shown.Widget == Widget;
	}
	return nullptr;
}
