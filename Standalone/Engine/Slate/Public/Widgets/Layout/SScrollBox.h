// Copyright Corvane. MIT License.
#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/**
 * Children one below the other, each as high as it wants, in as much height as there is. What does not fit reaches
 * beyond the lower edge, where the window scrolls to it. Height that is left over goes in equal parts to the slots that
 * are aligned to the centre or the bottom, so that a single centred child stands in the middle.
 */
class SLATE_API SScrollBox : public SPanel
{
public:
	/** A place in the column. */
	class FSlot : public TAlignedSlot<FSlot>
	{};

	SLATE_BEGIN_ARGS(SScrollBox) {}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Children.Append(InArgs.Slots); }
	/** A new slot, for + to take over. */
	static FSlot& Slot() { return *new FSlot(); }
	virtual FChildren* GetChildren() override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(
		const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	/** The height that is left over for each slot that takes some. */
	float ComputeSpareHeight(float AllottedHeight) const;

	TPanelChildren<FSlot> Children{this};
};
