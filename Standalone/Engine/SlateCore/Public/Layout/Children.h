// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "SlotBase.h"
#include "Templates/UniquePtr.h"

/** A widget's children in their order, whatever kind of slots they stand in. */
class SLATECORE_API FChildren
{
public:
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const = 0;
	TSharedRef<SWidget> GetChildAt(int32 Index) { return GetSlotAt(Index).GetWidget(); }
	TSharedRef<const SWidget> GetChildAt(int32 Index) const { return GetSlotAt(Index).GetWidget(); }
};

/** The children of a widget that can have none. */
class SLATECORE_API FNoChildren : public FChildren
{
public:
	/** Serves every such widget. */
	static FNoChildren NoChildrenInstance;

	virtual int32 Num() const override;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override;
};

/** A slot that is its widget's only one. While it holds the null widget it counts as no child. */
class SLATECORE_API FSimpleSlot : public FChildren, public TAlignedSlot<FSimpleSlot>
{
public:
	explicit FSimpleSlot(SWidget& InOwner);

	virtual int32 Num() const override;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override;
};

/** Any number of slots of one kind, owned. */
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	explicit TPanelChildren(SWidget* InOwner) : Owner(InOwner) {}

	virtual int32 Num() const override { return Slots.Num(); }
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override { return *Slots[ChildIndex]; }
	const SlotType& operator[](int32 Index) const { return *Slots[Index]; }
	/** Takes the slots over. */
	template <typename NewSlotType>
	void Append(const TArray<NewSlotType*>& NewSlots)
	{
		for (NewSlotType* Slot : NewSlots)
		{
			Slot->SetOwner(*Owner);
			Slots.Add(TUniquePtr<SlotType>(Slot));
		}
	}

private:
	SWidget* Owner;
	TArray<TUniquePtr<SlotType>> Slots;
};
