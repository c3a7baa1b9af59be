// Copyright Corvane. MIT License.
#include "Framework/Commands/UICommandList.h"

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction)
{
	check(InUICommandInfo.IsValid());
	checkf(!IsActionMapped(InUICommandInfo), TEXT("Command '%s' is mapped already"),
		*InUICommandInfo->GetCommandName().ToString());
	UICommandBindingMap.Add(InUICommandInfo, InUIAction);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	EUIActionRepeatMode /*RepeatMode*/)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, EUIActionRepeatMode /*RepeatMode*/)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, EUIActionRepeatMode /*RepeatMode*/)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, IsCheckedDelegate));
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action && Action->Execute();
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action && Action->CanExecute();
}

ECheckBoxState FUICommandList::GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action ? Action->GetCheckState() : ECheckBoxState::Unchecked;
}

bool FUICommandList::IsActionMapped(const TSharedPtr<const FUICommandInfo> Command) const
{
	return UICommandBindingMap.Contains(Command);
}

const FUIAction* FUICommandList::GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const
{
	return UICommandBindingMap.Find(Command);
}
