// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FUICommandInfo;
class FUICommandList;
class SWidget;

/** Buttons of the tests in the level editor's toolbar, one of which opens a menu, while this object lives. */
class FTestMenu
{
public:
	FTestMenu();
	FTestMenu(const FTestMenu&) = delete;
	FTestMenu& operator=(const FTestMenu&) = delete;
	~FTestMenu();

	/** How often the menu was made, and its entry "Open It" chosen. */
	int32 MadeCount = 0;
	int32 OpenCount = 0;
	/** The state of the toggle "Light", and whether it can be chosen. */
	bool bLight = false;
	bool bCanLight = true;

private:
	TSharedRef<SWidget> MakeMenu();
	TSharedRef<SWidget> MakeOther();
	void OnOpen() { ++OpenCount; }
	void OnLight() { bLight = !bLight; }
	bool CanLight() { return bCanLight; }
	bool IsLit() { return bLight; }

	TSharedPtr<FUICommandList> Commands;
};
