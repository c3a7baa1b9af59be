// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

class UWorld;

/** A rectangle of the screen in which a world is shown. What it draws with is the business of derived classes. */
class FViewport
{
public:
	virtual ~FViewport() {}

	/** Has the picture drawn anew. */
	virtual void InvalidateDisplay() = 0;

	/** Has what can be clicked at found out anew. */
	virtual void InvalidateHitProxy() = 0;
};

/** What decides on the content of a viewport. */
class FViewportClient
{
public:
	virtual ~FViewportClient() {}

	/** The world that the viewport shows, or null. */
	virtual UWorld* GetWorld() const { return nullptr; }
};
