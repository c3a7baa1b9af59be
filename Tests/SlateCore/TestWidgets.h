// Copyright Corvane. MIT License.
#pragma once

#include "Layout/LayoutUtils.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"

/** A leaf that wants a given size. */
class STestLeaf : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STestLeaf) {}
	SLATE_ARGUMENT(FVector2D, Size)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Size = InArgs._Size; }

	FVector2D Size;

protected:
	virtual FVector2D ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const override { return Size; }
};

/** A leaf that wants all the width that it may have, or one unit of it where there is no limit. */
class SGreedyLeaf : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SGreedyLeaf) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& /*InArgs*/) {}

protected:
	virtual FVector2D ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const override
	{
		return FVector2D(GetWidthCap() < 1.0e9f ? GetWidthCap() : 1.0f, 1.0f);
	}
};

inline TSharedRef<STestLeaf> MakeLeaf(float Width, float Height)
{
	return SNew(STestLeaf).Size(FVector2D(Width, Height));
}

/** Left, top, width and height. */
struct FTestRect
{
	float X;
	float Y;
	float Width;
	float Height;

	bool operator==(const FTestRect& Other) const
	{
		return X == Other.X && Y == Other.Y && Width == Other.Width && Height == Other.Height;
	}
	friend std::ostream& operator<<(std::ostream& Stream, const FTestRect& Rect)
	{
		return Stream << Rect.X << "," << Rect.Y << " " << Rect.Width << "x" << Rect.Height;
	}
};

inline FTestRect ToRect(const FGeometry& Geometry)
{
	return FTestRect{Geometry.GetAbsolutePosition().X, Geometry.GetAbsolutePosition().Y, Geometry.GetLocalSize().X,
		Geometry.GetLocalSize().Y};
}

/** What Root, laid out in a size, does with its children. */
inline FArrangedChildren ArrangeIn(
	const TSharedRef<SWidget>& Root, float Width, float Height, EVisibility Filter = EVisibility::Visible)
{
	Root->SlatePrepass(1.0f);
	FArrangedChildren Arranged(Filter);
	Root->ArrangeChildren(FGeometry::MakeRoot(FVector2D(Width, Height), FSlateLayoutTransform()), Arranged);
	return Arranged;
}
