// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Map.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"

/** What commands do where this list is used. */
class SLATE_API FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	virtual ~FUICommandList() = default;

	/** Says what a command does; fatal for null and for a command that is mapped. */
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction);
	/** The same with the delegates one by one. */
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** @return false, with nothing done, for a command that is not mapped, may not, or does nothing. */
	virtual bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** False for a command that is not mapped. */
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** Unchecked for a command that is not mapped. */
	ECheckBoxState GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	bool IsActionMapped(const TSharedPtr<const FUICommandInfo> Command) const;
	/** Null for a command that is not mapped. */
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const;

private:
	TMap<TSharedPtr<const FUICommandInfo>, FUIAction> UICommandBindingMap;
};
