// Copyright Corvane. MIT License.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "TestEditor.h"

#include "IDetailTreeNode.h"

class AZAVSpoutReceiverManager;
class FPropertyEditorModule;
class IPropertyRowGenerator;
class SCheckBox;
class SComboButton;
class STextBlock;
class UZAVCaptureComponent;

/** The rows of a details panel with their widgets, each before those below it. */
class FDetailsRows
{
public:
	struct FRow
	{
		TSharedRef<IDetailTreeNode> Node;
		FNodeWidgets Widgets;
		/** The text of the name. */
		std::string Name;
		/** How many rows it is below. */
		int Depth;
	};

	explicit FDetailsRows(const TArray<UObject*>& Objects);

	/** The first row of that name; fatal if there is none. */
	const FRow& Get(const std::string& Name) const;
	bool Has(const std::string& Name) const;
	/** All names in their order: "Category( Group( Row* ) )", with a * behind what is in the advanced section. */
	std::string Describe() const;

	/** The row with the drop-down of sender names; fatal if there is none. */
	const FRow& GetSenderRow() const;
	SComboButton& GetDropDown() const;
	/** The closed drop-down's text, asked for as a window does. */
	std::string GetLabel() const;
	SCheckBox& GetBox(const std::string& Name) const;
	/** Clicks the box of the row, in a tab of its own. */
	void Click(const std::string& Name) const;

	/** The first widget of the type, from the top of the tree down; null if there is none. */
	static TSharedPtr<SWidget> Find(const TSharedPtr<SWidget>& Root, const char* Type);
	static std::string TextOf(const TSharedPtr<SWidget>& Root);
	static const STextBlock& GetTextBlock(const TSharedPtr<SWidget>& Root);

	IPropertyRowGenerator& GetGenerator() const { return *Generator; }
	const std::vector<FRow>& GetAll() const { return Rows; }

private:
	void Read(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, int Depth);

	TSharedRef<IPropertyRowGenerator> Generator;
	std::vector<FRow> Rows;
};

/**
 * An editor with the module's two details layouts, but without the module: they are this program's own, so that what
 * they keep to themselves can be looked at.
 */
class FDetailsFixture : public ::testing::Test
{
protected:
	FDetailsFixture();
	~FDetailsFixture() override;

	static FPropertyEditorModule& GetPropertyEditor();
	static void SetSenders(const TArray<FString>& Names);
	AZAVSpoutReceiverManager& SpawnReceiver(bool bUseFirstAvailable, const TCHAR* Name);
	UZAVCaptureComponent& SpawnCaptureComponent();

	FTestEditor Editor;
};
