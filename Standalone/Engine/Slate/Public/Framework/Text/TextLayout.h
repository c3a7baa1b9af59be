// Copyright Corvane. MIT License.
#pragma once

/** Where the lines of a text stand within its width. */
namespace ETextJustify
{
	enum Type
	{
		Left,
		Center,
		Right,
	};
}
