// Copyright Corvane. MIT License.
#pragma once

#include <memory>
#include <string>

class FStandaloneEditor;

/** What a view is for. */
enum class EEditorViewUse
{
	/** Somebody sits in front of it: it needs a display, remembers where its panels stood, asks before work is lost. */
	Person,
	/**
	 * A script drives the editor, and answers must not depend on the view: nothing moves by itself, nothing is
	 * remembered, and what asking an editor's panels could change is asked only as far as the script has asked for it.
	 * Works without a display.
	 */
	Script
};

/**
 * What shows a running editor. One at a time in a process, as its toolkit has but one application object. The library
 * that implements it is opened at run time: whatever needs no window needs no toolkit.
 */
class IEditorView
{
public:
	virtual ~IEditorView() = default;

	/** Shows the editor, which must run until Detach. */
	virtual void Attach(FStandaloneEditor& Editor) = 0;
	/** Lets go of all that belongs to the editor, which is about to end. */
	virtual void Detach() = 0;

	/** Handles what its windows have been sent and brings them up to date with the editor. */
	virtual void Update() = 0;

	/**
	 * Shows the window, lets the user work and ticks the editor until the window is closed.
	 * @param LevelFile where the open level came from; empty for a new one.
	 */
	virtual void Run(const std::string& LevelFile) = 0;

	/**
	 * Writes a picture as a PNG file.
	 * @param Tab the panel's title, or the tab's id, that is shown alone; empty for the whole window.
	 * @return false with one line.
	 */
	virtual bool SaveScreenshot(const std::string& File, const std::string& Tab, std::string& OutError) = 0;

	/**
	 * Opens the view's library, which lies beside the program, and makes the view.
	 * @return null with one line, for example where a person's view has no display.
	 */
	static std::unique_ptr<IEditorView> Make(EEditorViewUse Use, std::string& OutError);
};

/** What the library exports, as "MakeEditorView". */
using FMakeEditorView = IEditorView* (*)(EEditorViewUse Use, std::string& OutError);
