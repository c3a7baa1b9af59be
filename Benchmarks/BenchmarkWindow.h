// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <memory>
#include <vector>

#include "StandaloneEditor.h"

class AActor;
class IEditorView;

/** An editor with the plugin, and the window over it as a person has it, but that nobody sees it. */
class FBenchmarkWindow
{
public:
	static constexpr int Width = 1600;
	static constexpr int Height = 900;

	FBenchmarkWindow();
	FBenchmarkWindow(const FBenchmarkWindow&) = delete;
	FBenchmarkWindow& operator=(const FBenchmarkWindow&) = delete;
	~FBenchmarkWindow();

	void Open();
	void Close();

	/** A sixtieth of a second passes: a step of the editor, the window follows and is painted. */
	void Frame();
	/** As many frames as pass until nothing is left to be done. */
	void Settle();

	void ShowWizardAndReceiver(int NumSenders);
	/** So many actors on the ground, on a square in front of the view. */
	std::vector<AActor*> FillLevel(int32 NumActors);

private:
	FStandaloneEditor Editor;
	std::unique_ptr<IEditorView> View;
	double Time = 0.0;
};
