// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "MainWindow.h"
#include "StandaloneEditor.h"
#include "WindowView.h"

class FSlateHost;

/** The whole window over a running editor with the plugin; the clock stands until it is moved. */
class FMainWindowFixture : public ::testing::Test
{
protected:
	explicit FMainWindowFixture(EEditorViewUse Use = EEditorViewUse::Script);
	~FMainWindowFixture() override;

	FMainWindow& GetWindow() { return *View->GetWindow(); }
	/** What a running window does once a frame. */
	void Frame();
	void Advance(double Seconds);
	/** Opens the wizard as the menu does, and brings it up to date. */
	void OpenWizard();
	/** What shows the tab's content. */
	FSlateHost& GetTabHost(const char* TabId);
	/** The Qt widget that shows the first widget of that type, or with that text, in the tab. */
	QWidget& FindInTab(const char* TabId, const TCHAR* Type);
	QWidget& FindText(const char* TabId, const QString& Text);
	/** Clicks, types and presses as a user does, then lets a frame pass. */
	void Click(QWidget& Widget);
	void Type(const QString& Text);
	void Press(int Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier);
	/** Places an actor at the origin and selects it. */
	void Place(const TCHAR* ClassName);

	FStandaloneEditor Editor;
	std::unique_ptr<FWindowView> View;

private:
	double Time = 0.0;
};
