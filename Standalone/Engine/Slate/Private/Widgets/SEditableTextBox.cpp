// Copyright Corvane. MIT License.
#include <limits>

#include "Widgets/Input/SEditableTextBox.h"

#include "Framework/Application/SlateApplication.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Layout/Margin.h"
#include "Math/UnrealMathUtility.h"
#include "Styling/CoreStyle.h"

namespace
{
	constexpr TCHAR BackspaceCharacter = 8;

	bool IsLeadSurrogate(TCHAR Unit)
	{
		return (Unit & 0xfc00) == 0xd800;
	}

	bool IsTrailSurrogate(TCHAR Unit)
	{
		return (Unit & 0xfc00) == 0xdc00;
	}

	bool IsControlCharacter(TCHAR Unit)
	{
		return Unit < 32 || Unit == 127;
	}

	FString WithoutLineBreaks(const FString& Pasted)
	{
		FString Result;
		Result.Reserve(Pasted.Len());
		for (int32 Index = 0; Index < Pasted.Len(); ++Index)
		{
			if (Pasted[Index] != TEXT('\r') && Pasted[Index] != TEXT('\n'))
			{
				Result.AppendChar(Pasted[Index]);
			}
		}
		return Result;
	}

	ETextCommit::Type GetCommitType(EFocusCause FocusCause)
	{
		switch (FocusCause)
		{
			case EFocusCause::Mouse:
			case EFocusCause::Navigation:
				return ETextCommit::OnUserMovedFocus;
			case EFocusCause::Cleared:
				return ETextCommit::OnCleared;
			default:
				return ETextCommit::Default;
		}
	}
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	SetText(InArgs._Text);
	Font =
		InArgs._Font.IsSet() ? InArgs._Font : FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::RegularTextSize);
	MinDesiredWidth = InArgs._MinDesiredWidth;
	ClearKeyboardFocusOnCommit = InArgs._ClearKeyboardFocusOnCommit;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
}

void SEditableTextBox::SetText(const TAttribute<FText>& InNewText)
{
	BoundText = InNewText;
	Text = BoundText.Get();
	bTyped = false;
	bAllSelected = false;
}

const FText& SEditableTextBox::GetText() const
{
	if (!bTyped && BoundText.IsBound())
	{
		Text = BoundText.Get();
	}
	return Text;
}

void SEditableTextBox::SelectAllText()
{
	bAllSelected = true;
}

void SEditableTextBox::EditText(const FString& NewText)
{
	ChangeText(WithoutLineBreaks(NewText));
}

bool SEditableTextBox::SupportsKeyboardFocus() const
{
	return true;
}

void SEditableTextBox::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	PendingLeadSurrogate = 0;
	if (!bIsCommittingByEnter)
	{
		Commit(GetCommitType(InFocusEvent.GetCause()));
	}
}

FReply SEditableTextBox::OnKeyChar(const FGeometry& /*MyGeometry*/, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Unit = InCharacterEvent.GetCharacter();
	const TCHAR Lead = PendingLeadSurrogate;
	PendingLeadSurrogate = IsLeadSurrogate(Unit) ? Unit : TCHAR(0);
	if (Unit == BackspaceCharacter)
	{
		DeleteBackwards();
	}
	else if (IsTrailSurrogate(Unit))
	{
		if (Lead != 0)
		{
			ReplaceSelection(FString(1, &Lead).AppendChar(Unit));
		}
	}
	else if (!IsLeadSurrogate(Unit) && !IsControlCharacter(Unit))
	{
		ReplaceSelection(FString(1, &Unit));
	}
	return FReply::Handled();
}

FReply SEditableTextBox::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Enter)
	{
		CommitByEnter();
	}
	else if (Key == EKeys::A && InKeyEvent.IsControlDown())
	{
		SelectAllText();
	}
	else if (Key == EKeys::V && InKeyEvent.IsControlDown())
	{
		Paste();
	}
	else
	{
		return FReply::Unhandled();
	}
	return FReply::Handled();
}

FVector2D SEditableTextBox::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const FMargin Frame(4.0f, 2.0f);
	FVector2D Result = TextMeasure.Measure(GetText().ToString(), Font.Get(), std::numeric_limits<float>::infinity());
	Result.X = FMath::Max(Result.X, MinDesiredWidth.Get());
	return Result + Frame.GetDesiredSize();
}

void SEditableTextBox::ReplaceSelection(const FString& Insertion)
{
	FString NewText;
	NewText.Reserve(GetText().ToString().Len() + Insertion.Len());
	if (!bAllSelected)
	{
		NewText += Text.ToString();
	}
	NewText += Insertion;
	ChangeText(MoveTemp(NewText));
}

void SEditableTextBox::DeleteBackwards()
{
	FString NewText = bAllSelected ? FString() : GetText().ToString();
	const int32 Length = NewText.Len();
	if (Length > 0)
	{
		const bool bPair = Length > 1 && IsTrailSurrogate(NewText[Length - 1]) && IsLeadSurrogate(NewText[Length - 2]);
		NewText.RemoveAt(Length - (bPair ? 2 : 1), bPair ? 2 : 1);
	}
	ChangeText(MoveTemp(NewText));
}

void SEditableTextBox::Paste()
{
	FString Clipboard;
	FPlatformApplicationMisc::ClipboardPaste(Clipboard);
	ReplaceSelection(WithoutLineBreaks(Clipboard));
}

void SEditableTextBox::CommitByEnter()
{
	// The focus that Enter gives up would commit once more.
	TGuardValue<bool> Committing(bIsCommittingByEnter, true);
	Commit(ETextCommit::OnEnter);
	if (ClearKeyboardFocusOnCommit.Get() && HasKeyboardFocus())
	{
		FSlateApplication::Get().ClearKeyboardFocus(EFocusCause::Cleared);
	}
}

void SEditableTextBox::ChangeText(FString&& NewText)
{
	bAllSelected = false;
	if (!GetText().ToString().Equals(NewText))
	{
		Text = FText::FromString(MoveTemp(NewText));
		bTyped = true;
		// A copy: the handler may set another text.
		OnTextChanged.ExecuteIfBound(FText(Text));
	}
}

void SEditableTextBox::Commit(ETextCommit::Type CommitType)
{
	// A copy: the handler may set another text.
	const FText Committed = GetText();
	bTyped = false;
	OnTextCommitted.ExecuteIfBound(Committed, CommitType);
}
