// Copyright Corvane. MIT License.
#pragma once

#include "Leaves/Leaf.h"

class SCheckBox;

/** A check box; what stands right of it is shown by leaves of its own. */
class FCheckLeaf final : public FLeaf
{
public:
	FCheckLeaf(const TSharedRef<SCheckBox>& CheckBox, QWidget* Parent);

protected:
	void Show(SWidget& Shown, const FPlace& Place) override;
};
