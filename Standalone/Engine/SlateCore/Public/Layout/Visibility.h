// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** Whether a widget is drawn, takes place in the layout, and can be hit by the pointer. */
struct SLATECORE_API EVisibility
{
	/** Drawn; it and its children can be hit. */
	static const EVisibility Visible;
	/** Not drawn and takes no place: its slot's padding vanishes as well. */
	static const EVisibility Collapsed;
	/** Not drawn, but keeps its place. */
	static const EVisibility Hidden;
	/** Drawn; neither it nor its children can be hit. */
	static const EVisibility HitTestInvisible;
	/** Drawn; its children can be hit, it cannot. */
	static const EVisibility SelfHitTestInvisible;
	/** As a filter: everything that takes a place. */
	static const EVisibility All;

	constexpr EVisibility() : Value(VisibleBit | SelfHitBit | ChildrenHitBit) {}

	bool operator==(const EVisibility& Other) const { return Value == Other.Value; }
	bool operator!=(const EVisibility& Other) const { return Value != Other.Value; }
	/** Drawn, whether it can be hit or not. */
	bool IsVisible() const { return (Value & VisibleBit) != 0; }
	static bool DoesVisibilityPassFilter(const EVisibility InVisibility, const EVisibility InVisibilityFilter)
	{
		return (InVisibility.Value & InVisibilityFilter.Value & (VisibleBit | CollapsedBit | HiddenBit)) != 0;
	}

private:
	enum EBits : uint8
	{
		VisibleBit = 1,
		CollapsedBit = 2,
		HiddenBit = 4,
		SelfHitBit = 8,
		ChildrenHitBit = 16,
	};
	explicit constexpr EVisibility(int32 InValue) : Value(static_cast<uint8>(InValue)) {}

	uint8 Value;
};
