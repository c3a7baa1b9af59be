// Copyright Corvane. MIT License.
#pragma once

#include "Framework/SlateDelegates.h"
#include "Standalone/SPressable.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

/**
 * A box that is ticked or not, and any content right of it. Pressing unchecks a checked one and checks any other. It
 * keeps the new state itself unless IsChecked is bound.
 */
class SLATE_API SCheckBox : public SPressable
{
public:
	SLATE_BEGIN_ARGS(SCheckBox) : _IsChecked(ECheckBoxState::Unchecked) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
	/** Is told the new state. */
	SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	bool IsChecked() const { return GetCheckedState() == ECheckBoxState::Checked; }
	ECheckBoxState GetCheckedState() const { return CheckedState.Get(); }

protected:
	virtual FReply Press() override;

private:
	TAttribute<ECheckBoxState> CheckedState;
	FOnCheckStateChanged OnCheckStateChanged;
};
