// Copyright Corvane. MIT License.
#pragma once

#include "Leaves/Leaf.h"

class SButton;

/** A button's plate; its content is shown on it by leaves of its own. */
class FButtonLeaf final : public FLeaf
{
public:
	FButtonLeaf(const TSharedRef<SButton>& Button, QWidget* Parent);

protected:
	void Show(SWidget& Shown, const FPlace& Place) override;
};
