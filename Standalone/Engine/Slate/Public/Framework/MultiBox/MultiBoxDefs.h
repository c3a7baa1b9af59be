// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** What an entry of a menu or toolbar is. */
enum class EMultiBlockType : uint8
{
	None,
	ToolBarButton,
	ToolBarComboButton,
};
