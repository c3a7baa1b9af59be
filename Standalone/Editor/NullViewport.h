// Copyright Corvane. MIT License.
#pragma once

#include "UnrealClient.h"

/** A viewport where there is no window: whatever is drawn into it goes nowhere. */
class FNullViewport final : public FViewport
{
public:
	void InvalidateDisplay() override {}
	void InvalidateHitProxy() override {}
};
