// Copyright Corvane. MIT License.
#pragma once

#include "Rendering/SlateLayoutTransform.h"
#include "Templates/SharedPointer.h"

class FArrangedWidget;
class SWidget;

/** Where a widget stands and how large it is, in slate units. */
struct SLATECORE_API FGeometry
{
	FGeometry() = default;

	/** The geometry of what has no parent. */
	static FGeometry MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform);
	/** ChildWidget at an offset from this geometry's corner. */
	FArrangedWidget MakeChild(
		const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize) const;

	const FVector2D& GetLocalSize() const { return Size; }
	/** From the root's origin. */
	const FVector2D& GetAbsolutePosition() const { return AbsolutePosition; }

private:
	FVector2D AbsolutePosition;
	FVector2D Size;
};
