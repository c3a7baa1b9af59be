// Copyright Corvane. MIT License.
#pragma once

#include "Driver/DriverSession.h"
#include "Driver/RequestTable.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "Framework/Docking/TabManager.h"
#include "Input/Reply.h"
#include "Styling/SlateStyle.h"
#include "Types/SlateEnums.h"

class SButton;
class SEditableTextBox;
class SImage;
class STextBlock;
class SVerticalBox;

/** A driver's session for the length of a test, and what a recording can ask of it. */
class FSessionFixture : public ::testing::Test
{
protected:
	/** With the plugin. */
	FSessionFixture() : FSessionFixture(FStandaloneEditorOptions()) {}
	explicit FSessionFixture(const FStandaloneEditorOptions& Options);

	/** @return the answer of a request that is carried out. */
	FAnswer Ask(const nlohmann::json& Request);
	FAnswer AskTab(const char* Do, const char* Tab) { return Ask({{"do", Do}, {"tab", Tab}}); }

	/** The same request by its line; whether it is carried out is left open. */
	FAnswer AskLine(const std::string& Line);

	/** @return the error of a request that changed nothing of what Tabs and their widgets answer. */
	std::string GetRefusal(const nlohmann::json& Request);

	FDriverSession Session;

private:
	/** All open tabs and their widgets. */
	std::string DescribeAll();
};

/** Two tabs of the engine alone: "TestPage" with a widget of each kind, and "TestOther". */
class FTabFixture : public FSessionFixture
{
protected:
	FTabFixture();
	virtual ~FTabFixture() override;

	/** The widgets of the page, by their place from the root on: {3, 1} is the second child of the fourth one. */
	FAnswer GetNode(std::initializer_list<size_t> Place);

	/** What happened: "first changed a", "second committed b by enter", "pressed". */
	std::vector<std::string> Log;
	bool bCanSpawn = true;
	/** Called after each commit, if set. */
	std::function<void()> AfterCommit;

	TSharedPtr<STextBlock> Title;
	TSharedPtr<SEditableTextBox> First;
	TSharedPtr<SEditableTextBox> Second;
	TSharedPtr<SImage> Icon;
	TSharedPtr<SVerticalBox> Group;
	TSharedPtr<SButton> Dead;

private:
	TSharedRef<class SDockTab> SpawnPage(const FSpawnTabArgs& Args);
	TSharedRef<SDockTab> SpawnOther(const FSpawnTabArgs& Args);
	bool CanSpawn(const FSpawnTabArgs& /*Args*/) { return bCanSpawn; }
	TSharedRef<SWidget> MakeTexts();
	TSharedRef<SWidget> MakeBoxes();
	TSharedRef<SWidget> MakeImages();
	TSharedRef<SWidget> MakeButtons();
	TSharedRef<SButton> MakeButton(const TCHAR* Caption);

	void OnChanged(const FText& Text, const char* Box);
	void OnCommitted(const FText& Text, ETextCommit::Type Type, const char* Box);
	FReply OnPressed();

	FSlateStyleSet Style;
	FSlateBrush Nameless;
};
