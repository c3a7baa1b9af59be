// Copyright Corvane. MIT License.
#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/SlateDelegates.h"
#include "Standalone/TextMeasure.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/**
 * A line of text to type into. The caret stands at the end, or everything is selected; what is typed or pasted replaces
 * the selection. Line breaks are left out of pasted text, other control characters are not typed. It commits on Enter,
 * and whenever it loses the focus, whether anything was typed or not; Enter is one commit although it gives up the
 * focus too. SetText raises no event. A bound text is followed as long as nothing is typed, and again after the commit:
 * what nobody took over is gone.
 */
class SLATE_API SEditableTextBox : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox) : _ClearKeyboardFocusOnCommit(true) {}
	SLATE_ATTRIBUTE(FText, Text)
	/** By default the engine's regular font at size 9. */
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	/** Of the text, without the frame around it. */
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	/** Whether Enter gives up the focus. */
	SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
	/** After every edit that changed the text; a paste is one edit, so is a character of two UTF-16 units. */
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FText& GetText() const;
	/** Forgets what was typed. */
	void SetText(const TAttribute<FText>& InNewText);
	void SelectAllText();
	/** The user has made this of the text, in a box that somebody else shows. The real engine's box has keys only. */
	void EditText(const FString& NewText);
	/** The real engine keeps this getter to itself, and the next one. */
	const FSlateFontInfo& GetFont() const { return Font.Get(); }
	/** What every edit is told to. */
	const FOnTextChanged& GetOnTextChanged() const { return OnTextChanged; }

	virtual bool SupportsKeyboardFocus() const override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	void ReplaceSelection(const FString& Insertion);
	void DeleteBackwards();
	void Paste();
	void CommitByEnter();
	/** Tells the change, if it is one. */
	void ChangeText(FString&& NewText);
	void Commit(ETextCommit::Type CommitType);

	TAttribute<FText> BoundText;
	/** What is shown: the bound text as it last was, or what was typed since. */
	mutable FText Text;
	bool bTyped = false;
	bool bAllSelected = false;
	/** The first unit of a character whose second one has not come yet, or 0. */
	TCHAR PendingLeadSurrogate = 0;
	bool bIsCommittingByEnter = false;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<float> MinDesiredWidth;
	TAttribute<bool> ClearKeyboardFocusOnCommit;
	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;
	mutable FTextMeasure TextMeasure;
};
