// Copyright Corvane. MIT License.
#include "Driver/InputRequests.h"

#include "Driver/RequestedTab.h"
#include "Driver/WidgetDescription.h"
#include "EngineText.h"
#include "ErrorText.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "UserInput.h"
#include "WidgetFinder.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"

namespace
{
	/** What listens to a box works at each change; beyond this length a user would paste as well. */
	constexpr int32 LongestTypedText = 1000;

	enum class EEntry
	{
		Typed,
		Pasted
	};

	/** What happens after the entry. */
	enum class ECommit
	{
		None,
		Enter,
		Focus
	};

	std::string Quote(const FString& Text)
	{
		return FErrorText::Quote(FEngineText::ForDisplay(Text));
	}

	/** Code points: a pair of surrogates is one. */
	int32 CountCharacters(const FString& Text)
	{
		int32 Count = 0;
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			Count += (Text[Index] & 0xfc00) == 0xdc00 ? 0 : 1;
		}
		return Count;
	}

	FString ReadText(const FRequest& Request, EEntry Entry)
	{
		FString Text = Request.GetText("text");
		if (Entry == EEntry::Typed && CountCharacters(Text) > LongestTypedText)
		{
			throw FRequestError("the text has more than 1,000 characters: use paste");
		}
		return Text;
	}

	ECommit ReadCommit(const FRequest& Request)
	{
		const FString Word = Request.Has("commit") ? Request.GetText("commit") : FString(TEXT("none"));
		if (Word.Equals(TEXT("none")))
		{
			return ECommit::None;
		}
		if (Word.Equals(TEXT("enter")))
		{
			return ECommit::Enter;
		}
		if (Word.Equals(TEXT("focus")))
		{
			return ECommit::Focus;
		}
		throw FRequestError("commit is \"none\", \"enter\" or \"focus\", not " + Quote(Word));
	}

	TSharedRef<SEditableTextBox> FindBox(const FRequest& Request, const TSharedRef<SWidget>& Content)
	{
		const int32 Wanted = Request.Has("box") ? Request.GetIndex("box") : 0;
		int32 Count = 0;
		for (const FWidgetFinder::FShown& Shown : FWidgetFinder(Content).GetShown())
		{
			if (Shown.Widget->GetType() != FName("SEditableTextBox") || Count++ != Wanted)
			{
				continue;
			}
			if (!Shown.bEnabled)
			{
				throw FRequestError("box " + std::to_string(Wanted) + " is disabled");
			}
			return StaticCastSharedRef<SEditableTextBox>(Shown.Widget);
		}
		throw FRequestError("box " + std::to_string(Wanted) + ": the tab shows " + std::to_string(Count));
	}

	/** Whether any key of the text does something to a box. */
	bool HasEffect(const FString& Text)
	{
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			if ((Text[Index] >= TEXT(' ') && Text[Index] != 0x7f) || Text[Index] == TEXT('\b'))
			{
				return true;
			}
		}
		return false;
	}

	void Replace(const FString& Text, EEntry Entry)
	{
		FUserInput::Press(EKeys::A, FUserInput::WithControl());
		if (Entry == EEntry::Pasted)
		{
			FUserInput::Paste(Text);
		}
		else
		{
			// A backspace leaves nothing of what is selected, which no other control character takes away.
			FUserInput::Type(HasEffect(Text) ? Text : FString(TEXT("\b")));
		}
	}

	/**
	 * A box that is gone or hidden once another one has committed gets nothing: what is shown then is the answer, as it
	 * is for a user.
	 */
	FAnswer Enter(const FRequest& Request, EEntry Entry)
	{
		const TSharedRef<SDockTab> Tab = FRequestedTab::GetOpen(Request);
		const TSharedRef<SEditableTextBox> Box = FindBox(Request, Tab->GetContent());
		const FString Text = ReadText(Request, Entry);
		const ECommit Commit = ReadCommit(Request);
		FUserInput::Click(Box);
		if (Box->HasKeyboardFocus())
		{
			Replace(Text, Entry);
		}
		if (Commit == ECommit::Enter && Box->HasKeyboardFocus())
		{
			FUserInput::Press(EKeys::Enter);
		}
		else if (Commit == ECommit::Focus && Box->HasKeyboardFocus())
		{
			// The tab beside all of its widgets: nothing there takes the focus.
			FUserInput::Click(Tab);
		}
		return {{"text", FEngineText::ForDisplay(Box->GetText().ToString())}};
	}

	FAnswer RunType(FDriverSession& /*Session*/, const FRequest& Request)
	{
		return Enter(Request, EEntry::Typed);
	}

	FAnswer RunPaste(FDriverSession& /*Session*/, const FRequest& Request)
	{
		return Enter(Request, EEntry::Pasted);
	}

	bool IsCaption(const FWidgetFinder::FShown& Shown, const FString& Caption)
	{
		const FText* Text = Shown.Button.IsValid() ? FWidgetDescription::FindText(*Shown.Widget) : nullptr;
		return Text && Text->ToString().Equals(Caption);
	}

	TSharedRef<SButton> FindButton(const TSharedRef<SWidget>& Content, const FString& Caption)
	{
		TArray<TSharedPtr<SButton>> Enabled;
		bool bDisabled = false;
		for (const FWidgetFinder::FShown& Shown : FWidgetFinder(Content).GetShown())
		{
			if (!IsCaption(Shown, Caption))
			{
				continue;
			}
			bDisabled = bDisabled || !Shown.bEnabled;
			if (Shown.bEnabled)
			{
				Enabled.Add(Shown.Button);
			}
		}
		if (Enabled.Num() == 0)
		{
			throw FRequestError(bDisabled ? "the button " + Quote(Caption) + " is disabled"
										  : "the tab shows no button " + Quote(Caption));
		}
		if (Enabled.Num() > 1)
		{
			throw FRequestError("the tab shows " + std::to_string(Enabled.Num()) + " buttons " + Quote(Caption));
		}
		return Enabled[0].ToSharedRef();
	}

	FAnswer RunClick(FDriverSession& /*Session*/, const FRequest& Request)
	{
		const TSharedRef<SButton> Button = FindButton(FRequestedTab::GetContent(Request), Request.GetText("text"));
		const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
		FUserInput::Click(Button);
		// A box commits whenever the focus leaves it, and the press on a button takes the focus.
		const bool bWasBox = Focused.IsValid() && Focused->GetType() == FName("SEditableTextBox");
		return {{"committed", bWasBox}};
	}

	std::vector<FParameter> GetEntryParameters()
	{
		return {{"tab", EParameterType::Text, true}, {"box", EParameterType::Index, false},
			{"text", EParameterType::Text, true}, {"commit", EParameterType::Text, false}};
	}
}

std::vector<FRequestDefinition> FInputRequests::GetAll()
{
	return {{"type", GetEntryParameters(), &RunType}, {"paste", GetEntryParameters(), &RunPaste},
		{"click", {{"tab", EParameterType::Text, true}, {"text", EParameterType::Text, true}}, &RunClick}};
}
