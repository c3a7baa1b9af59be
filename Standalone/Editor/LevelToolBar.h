// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "ToolMenuOwner.h"

/**
 * The editor's own buttons on the level editor's toolbar: save, undo and redo. They stand before those of modules,
 * which come later. Lives no longer than GEditor; the menus may go before it.
 */
class FLevelToolBar
{
public:
	FLevelToolBar();
	FLevelToolBar(const FLevelToolBar&) = delete;
	FLevelToolBar& operator=(const FLevelToolBar&) = delete;
	~FLevelToolBar();

	/** On whose behalf the buttons stand in the menus. */
	static FToolMenuOwner GetOwner();

	/**
	 * What the button "Save Current" does. Unbound, the button can't be used: where a level is saved to is known only
	 * to who opened it.
	 */
	FSimpleDelegate OnSave;

private:
	void AddFileButtons();
	void AddEditButtons();
};
