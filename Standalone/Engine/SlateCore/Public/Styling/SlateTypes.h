// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** What a check box shows. */
enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	/** Neither: what it stands for is mixed or follows something else. */
	Undetermined,
};
