// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <vector>

#include "CoreMinimal.h"

class FMultiBlock;
class FMultiBox;
struct FToolMenuEntry;

/** The toolbar of the level editor, as the plugins filled it, and the menus that its buttons open. */
class FEditorMenus
{
public:
	/** A button and the section of the toolbar in which it stands. Good until the toolbar changes. */
	struct FButton
	{
		FName Section;
		const FToolMenuEntry* Entry;
	};

	/** From left to right. */
	static std::vector<FButton> GetButtons();

	/**
	 * Opens a button's menu, which is made anew each time.
	 * @param Button its label, else its name.
	 * @return null, and one line that says why, if no such button opens a menu now.
	 */
	static TSharedPtr<const FMultiBox> Open(const FString& Button, std::string& OutError);

	/**
	 * Opens a button's menu and chooses the entry of that label.
	 * @return false, and one line that says why, if nothing was chosen.
	 */
	static bool Choose(const FString& Button, const FString& Entry, std::string& OutError);
};
