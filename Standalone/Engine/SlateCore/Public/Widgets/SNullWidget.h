// Copyright Corvane. MIT License.
#pragma once

#include "Templates/SharedPointer.h"

class SWidget;

/** The widget that is nothing: what an empty slot holds. */
class SLATECORE_API SNullWidget
{
public:
	static TSharedRef<SWidget> NullWidget;
};
