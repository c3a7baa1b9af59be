// Copyright Corvane. MIT License.
#pragma once

#include "Leaves/Leaf.h"

class SEditableTextBox;

/** An edit box. Qt's line edit edits (caret, selection, clipboard, input methods); the engine's box holds the text. */
class FEditLeaf final : public FLeaf
{
public:
	FEditLeaf(const TSharedRef<SEditableTextBox>& Box, QWidget* Parent);

protected:
	void Show(SWidget& Shown, const FPlace& Place) override;

private:
	void OnEdited(const QString& NewText);
	/** Takes over the engine's text if it is another one. */
	void Follow(const SEditableTextBox& Box);

	/** The engine's text as it was last shown. */
	QString Known;
	bool bHasFont = false;
};
