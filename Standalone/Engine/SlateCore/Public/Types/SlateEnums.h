// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

/** Along which axis a panel lays out. */
enum EOrientation
{
	Orient_Horizontal,
	Orient_Vertical,
};

/** Where a child stands across its slot. The order is that of EVerticalAlignment: layout treats both axes alike. */
enum EHorizontalAlignment
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right,
};

/** Where a child stands along its slot's height. */
enum EVerticalAlignment
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom,
};

/** What made an edit box commit its text. */
namespace ETextCommit
{
	enum Type
	{
		/** The focus went without the user having moved it, for example because the box was hidden. */
		Default,
		OnEnter,
		/** The user clicked elsewhere or tabbed away. */
		OnUserMovedFocus,
		/** Code took the focus away from everything. */
		OnCleared,
	};
}

/** What made a selection change. */
namespace ESelectInfo
{
	enum Type
	{
		OnKeyPress,
		OnNavigation,
		OnMouseClick,
		/** Set by code. */
		Direct,
	};
}
