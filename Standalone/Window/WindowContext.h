// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>

#include "EditorView.h"
#include "StandaloneEditor.h"

/** What the parts of the window know of each other. It outlives them all. */
struct FWindowContext
{
	FStandaloneEditor& Editor;
	EEditorViewUse Use = EEditorViewUse::Person;
	/** Shows one line in the status bar until the next one: what has been done, or why it was not. */
	std::function<void(const QString&)> Say = [](const QString&) {};

	bool IsScript() const { return Use == EEditorViewUse::Script; }
};
