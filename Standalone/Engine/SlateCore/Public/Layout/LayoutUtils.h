// Copyright Corvane. MIT License.
#pragma once

#include "Layout/ArrangedChildren.h"
#include "SlotBase.h"

/** @file The sums that every panel's layout is made of. */

/** A child's place along one axis of its slot. */
struct AlignmentArrangeResult
{
	/** From the slot's start. */
	float Offset;
	float Size;
};

/**
 * Places a slot's child along one axis: filled, it takes everything within the padding; otherwise its desired size, or
 * what there is. Padding that is larger than the slot leaves nothing for the child.
 */
SLATECORE_API AlignmentArrangeResult AlignChild(
	EOrientation Orientation, float AllottedSize, const FAlignedSlot& ChildToArrange);

/** Places the one child of a slot that covers a whole geometry. A collapsed child is not arranged. */
SLATECORE_API void ArrangeSingleChild(
	const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const FAlignedSlot& ChildSlot);

/** What a slot wants: its child's desired size and the padding, or nothing at all when the child is collapsed. */
SLATECORE_API FVector2D GetSlotDesiredSize(const FAlignedSlot& Slot);
