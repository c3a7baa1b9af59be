// Copyright Corvane. MIT License.
#pragma once

#include "Misc/Attribute.h"

/** A size in slate units that may be left open. */
struct FOptionalSize
{
	FOptionalSize() = default;
	FOptionalSize(const float SpecifiedSize) : Size(SpecifiedSize), bIsSet(true) {}

	bool IsSet() const { return bIsSet; }
	/** Meaningful only when set. */
	float Get() const { return Size; }

private:
	float Size = 0.0f;
	bool bIsSet = false;
};

/** How a box panel sizes a slot along its own axis. */
struct FSizeParam
{
	enum ESizeRule
	{
		/** The child's desired size. */
		SizeRule_Auto,
		/** A share of what the auto slots and the paddings leave, by weight. */
		SizeRule_Stretch,
	};

	ESizeRule SizeRule = SizeRule_Stretch;
	/** The weight of a stretched slot; weights below zero count as zero. */
	TAttribute<float> Value = 1.0f;
};

/** The size rule of a slot that takes its child's desired size. */
struct FAuto : public FSizeParam
{
	FAuto() { SizeRule = SizeRule_Auto; }
};

/** The size rule of a slot that shares the rest. */
struct FStretch : public FSizeParam
{
	FStretch(const TAttribute<float>& InWeight) { Value = InWeight; }
};
