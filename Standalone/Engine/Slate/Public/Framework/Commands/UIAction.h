// Copyright Corvane. MIT License.
#pragma once

#include "Delegates/Delegate.h"
#include "Styling/SlateTypes.h"

// The formatter takes lines without semicolon for one.
// clang-format off
DECLARE_DELEGATE(FExecuteAction)
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction)
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked)
DECLARE_DELEGATE_RetVal(ECheckBoxState, FGetActionCheckState)
	// clang-format on

	/** Whether an action goes on while its keys are held down. Commands have no keys here, so it makes no difference.
	 */
	enum class EUIActionRepeatMode
{
	RepeatDisabled,
	RepeatEnabled,
};

/** What a command or a menu entry does, whether it may, and how it is checked. Each question is asked anew when shown.
 */
struct FUIAction
{
	FUIAction() = default;
	explicit FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction = FCanExecuteAction(),
		FIsActionChecked InIsActionChecked = FIsActionChecked())
		: ExecuteAction(InExecuteAction), CanExecuteAction(InCanExecuteAction)
	{
		if (InIsActionChecked.IsBound())
		{
			GetActionCheckState = FGetActionCheckState::CreateLambda([InIsActionChecked]()
				{ return InIsActionChecked.Execute() ? ECheckBoxState::Checked : ECheckBoxState::Unchecked; });
		}
	}

	/** Nobody who could object means yes, also where nothing would happen. */
	bool CanExecute() const { return !CanExecuteAction.IsBound() || CanExecuteAction.Execute(); }
	/** @return false, with nothing done, if it may not or does nothing. */
	bool Execute() const { return CanExecute() && ExecuteAction.ExecuteIfBound(); }
	/** Unchecked where nobody tells. */
	ECheckBoxState GetCheckState() const
	{
		return GetActionCheckState.IsBound() ? GetActionCheckState.Execute() : ECheckBoxState::Unchecked;
	}

	FExecuteAction ExecuteAction;
	FCanExecuteAction CanExecuteAction;
	FGetActionCheckState GetActionCheckState;
};
