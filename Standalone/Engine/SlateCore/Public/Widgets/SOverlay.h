// Copyright Corvane. MIT License.
#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** Children in one place, the last one on top. As large as the largest of them. */
class SLATECORE_API SOverlay : public SPanel
{
public:
	/** A layer. */
	class FOverlaySlot : public TAlignedSlot<FOverlaySlot>
	{};

	SLATE_BEGIN_ARGS(SOverlay) {}
	SLATE_SUPPORTS_SLOT(FOverlaySlot)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Children.Append(InArgs.Slots); }
	/** A new slot, for + to take over. */
	static FOverlaySlot& Slot() { return *new FOverlaySlot(); }
	virtual FChildren* GetChildren() override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(
		const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	TPanelChildren<FOverlaySlot> Children{this};
};
