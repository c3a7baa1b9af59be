// Copyright Corvane. MIT License.
#pragma once

#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateEnums.h"

class FAlignedSlot;
class SWidget;
struct FSizeParam;

/** A parent's place for one child. A slot without content holds the null widget. */
class SLATECORE_API FSlotBase
{
public:
	FSlotBase();
	virtual ~FSlotBase() = default;
	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;

	const TSharedRef<SWidget>& GetWidget() const { return Widget; }
	/** Replaces the content. With an owner, the new content's parent becomes that owner. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);
	/** The widget whose slot this is. Its content has no parent before. */
	void SetOwner(SWidget& InOwner);

	/** For dumps: this slot's alignment and padding, or null if it has none. The real engine has no such function. */
	virtual const FAlignedSlot* AsAligned() const { return nullptr; }
	/** For dumps: how a box panel sizes it, or null in another panel. The real engine has no such function. */
	virtual const FSizeParam* GetSizeRule() const { return nullptr; }

private:
	/** Outlives the slot, being what the slot is a part of. */
	SWidget* Owner = nullptr;
	TSharedRef<SWidget> Widget;
};

/** A slot in which the child is aligned within a padding. */
class SLATECORE_API FAlignedSlot : public FSlotBase
{
public:
	virtual const FAlignedSlot* AsAligned() const override { return this; }

	EHorizontalAlignment HAlignment = HAlign_Fill;
	EVerticalAlignment VAlignment = VAlign_Fill;
	TAttribute<FMargin> SlotPadding = FMargin();
};

/** The chained setters of an aligned slot; each returns the slot in its own type. */
template <typename SlotType, typename BaseType = FAlignedSlot>
class TAlignedSlot : public BaseType
{
public:
	SlotType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		this->AttachWidget(InChildWidget);
		return Me();
	}
	SlotType& HAlign(EHorizontalAlignment InHAlignment)
	{
		this->HAlignment = InHAlignment;
		return Me();
	}
	SlotType& VAlign(EVerticalAlignment InVAlignment)
	{
		this->VAlignment = InVAlignment;
		return Me();
	}
	SlotType& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
	SlotType& Padding(float Horizontal, float Vertical)
	{
		return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical)));
	}
	SlotType& Padding(float Left, float Top, float Right, float Bottom)
	{
		return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom)));
	}
	SlotType& Padding(const TAttribute<FMargin>& InPadding)
	{
		this->SlotPadding = InPadding;
		return Me();
	}

private:
	SlotType& Me() { return static_cast<SlotType&>(*this); }
};
