// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <vector>

#include "TestEditor.h"

class AZAVSpoutSenderManager;
class SEditableTextBox;
class SWidget;

/** An editor with the plugin, its wizard open, for measuring what a user waits for. */
class FBenchmarkEditor
{
public:
	FBenchmarkEditor();

	FTestEditor& Get() { return Editor; }
	UWorld& GetWorld() { return Editor.GetWorld(); }

	TSharedRef<SEditableTextBox> GetNameBox() const;
	/** Pastes the name over what stands in the box, and commits it. */
	void EnterName(const FString& Name) const;
	/** Clicks the shown page's button. */
	void PressButton() const;

	/** Places a manager with that many entries, whose names go on from First. */
	AZAVSpoutSenderManager& PlaceManager(int32 First, int32 NumEntries);
	/**
	 * Names of one length, which all begin with the same 12 characters.
	 * @param Number up to 9,999,999.
	 */
	static FString MakeName(const TCHAR* Kind, int32 Number);

private:
	FTestEditor Editor;
	TSharedPtr<SWidget> Wizard;
};
