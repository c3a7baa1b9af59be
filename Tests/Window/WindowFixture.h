// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "EditorView.h"
#include "Panels/Panel.h"
#include "StandaloneEditor.h"
#include "WindowContext.h"

/** A running editor with the plugin, shown through the window's renderer; the clock stands until it is moved. */
class FWindowFixture : public ::testing::Test
{
protected:
	FWindowFixture();
	~FWindowFixture() override;

	/** What a running window does once a frame: events, a step of the editor, the panel's poll, events again. */
	void Frame(FPanel& Panel);
	/** So many seconds later by the application's clock. */
	void Advance(double Seconds);
	/** Shows a panel, not inside a window, in that size. */
	void ShowPanel(QWidget& Panel, int Width, int Height);
	/** Writes a picture into the folder that QUILLON_SHOTS names, if it names one, for whoever wants to look. */
	static void Grab(QWidget& Panel, const char* Name);

	FStandaloneEditor Editor;
	QString LastSaid;
	FWindowContext Context{Editor};

private:
	double Time = 0.0;
};
