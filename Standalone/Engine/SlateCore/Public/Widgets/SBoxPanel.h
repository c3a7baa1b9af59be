// Copyright Corvane. MIT License.
#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/**
 * Children one after the other. Auto slots take what their child wants, stretched ones (the default) share the rest by
 * their weights; paddings come first. When there is not enough room, stretched slots get nothing and auto ones reach
 * beyond the end. A child of a horizontal box is measured as if it could have the box's whole width.
 */
class SLATECORE_API SBoxPanel : public SPanel
{
public:
	/** A place in the row. */
	class FSlot : public FAlignedSlot
	{
	public:
		virtual const FSizeParam* GetSizeRule() const override { return &SizeParam; }

		FSizeParam SizeParam;
	};

	virtual FChildren* GetChildren() override;

protected:
	explicit SBoxPanel(EOrientation InOrientation) : Orientation(InOrientation) {}
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(
		const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	TPanelChildren<FSlot> Children{this};

private:
	float Along(const FVector2D& Size) const { return Orientation == Orient_Horizontal ? Size.X : Size.Y; }
	/** What each unit of stretched slots' weight gets along the panel. */
	float ComputeStretchUnit(float AllottedLength) const;

	EOrientation Orientation;
};

/** A row. */
class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	class FSlot : public TAlignedSlot<FSlot, SBoxPanel::FSlot>
	{
	public:
		FSlot& AutoWidth()
		{
			SizeParam = FAuto();
			return *this;
		}
		FSlot& FillWidth(const TAttribute<float>& StretchCoefficient)
		{
			SizeParam = FStretch(StretchCoefficient);
			return *this;
		}
	};

	SLATE_BEGIN_ARGS(SHorizontalBox) {}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_END_ARGS()

	SHorizontalBox() : SBoxPanel(Orient_Horizontal) {}
	void Construct(const FArguments& InArgs) { Children.Append(InArgs.Slots); }
	/** A new slot, for + to take over. */
	static FSlot& Slot() { return *new FSlot(); }
};

/** A column. */
class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	class FSlot : public TAlignedSlot<FSlot, SBoxPanel::FSlot>
	{
	public:
		FSlot& AutoHeight()
		{
			SizeParam = FAuto();
			return *this;
		}
		FSlot& FillHeight(const TAttribute<float>& StretchCoefficient)
		{
			SizeParam = FStretch(StretchCoefficient);
			return *this;
		}
	};

	SLATE_BEGIN_ARGS(SVerticalBox) {}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_END_ARGS()

	SVerticalBox() : SBoxPanel(Orient_Vertical) {}
	void Construct(const FArguments& InArgs) { Children.Append(InArgs.Slots); }
	/** A new slot, for + to take over. */
	static FSlot& Slot() { return *new FSlot(); }
};
