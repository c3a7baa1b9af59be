// Copyright Corvane. MIT License.
#pragma once

#include "Leaves/Leaf.h"

class SComboButton;

/** A combo box. What the closed box shows is shown on it by leaves of its own; the list is asked for at each opening.
 */
class FComboLeaf final : public FLeaf
{
public:
	FComboLeaf(const TSharedRef<SComboButton>& Combo, QWidget* Parent);

protected:
	void Show(SWidget& Shown, const FPlace& Place) override;
};
