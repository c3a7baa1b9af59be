// Copyright Corvane. MIT License.
#pragma once

#include "Leaves/Leaf.h"

class STextBlock;

/** A text, broken into lines where the engine's layout breaks it. */
class FTextLeaf final : public FLeaf
{
public:
	FTextLeaf(const TSharedRef<STextBlock>& Text, QWidget* Parent);

protected:
	/** A line that is too long for its place goes on beyond it, as the engine does not cut it off. */
	QRectF GetExtent(const SWidget& Shown, const FPlace& Place) const override;
	void Show(SWidget& Shown, const FPlace& Place) override;
};
