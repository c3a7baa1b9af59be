// Copyright Corvane. MIT License.
#pragma once

#include "Widgets/SWidget.h"

/** A widget that arranges any number of children; each kind has slots of its own. */
class SLATECORE_API SPanel : public SWidget
{
protected:
	/** The slots of all panels here are aligned ones. */
	const FAlignedSlot& GetAlignedSlot(int32 ChildIndex) const;
	/** The width cap less the padding of the child's slot: a panel may give a child its whole width. */
	virtual float ComputeChildWidthCap(int32 ChildIndex, float OwnWidthCap) const override;
};
