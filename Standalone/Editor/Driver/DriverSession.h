// Copyright Corvane. MIT License.
#pragma once

#include "EditorView.h"
#include "StandaloneEditor.h"

#include <memory>
#include <string>
#include <vector>

#include "CoreMinimal.h"

class FOutsideRecorder;

/**
 * What the requests of one recording work on: a running editor, the records of what it handed to the outside, and a
 * clock that nothing but the requests moves.
 */
class FDriverSession
{
public:
	FDriverSession();
	FDriverSession(const FDriverSession&) = delete;
	FDriverSession& operator=(const FDriverSession&) = delete;
	~FDriverSession();

	/**
	 * @param InView shows the editor and follows each request; null for none.
	 * @return false with one line if editor or plugin can't be started.
	 */
	bool Start(
		const FStandaloneEditorOptions& Options, std::string& OutError, std::unique_ptr<IEditorView> InView = nullptr);

	/** Null for none. */
	IEditorView* GetView() const { return View.get(); }

	FStandaloneEditor& GetEditor() { return Editor; }
	FOutsideRecorder& GetOutside() { return *Outside; }

	/** What follows each request: the editor does what is due by now, then time moves on by one frame. */
	void Tick();
	/** Turns the clock, in seconds. */
	void Advance(double Seconds);
	/** The clock: seconds since the session was made. */
	double GetTime() const { return Time; }

	/** The worker process shall end, and another one take its place with a fresh editor. */
	void RequestRestart() { bRestart = true; }
	bool IsRestartRequested() const { return bRestart; }

private:
	// Before the editor: it records until the last module is gone.
	std::unique_ptr<FOutsideRecorder> Outside;
	FStandaloneEditor Editor;
	std::unique_ptr<IEditorView> View;
	double Time = 0.0;
	bool bRestart = false;
};
