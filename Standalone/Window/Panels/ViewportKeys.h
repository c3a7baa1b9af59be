// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <set>

#include "Panels/ViewProjection.h"

/** The keys that move the viewport's view while they are held. */
class FViewportKeys
{
public:
	/**
	 * @param bFlying the letters move as well as the arrows.
	 * @param bRepeated the keyboard says again that the key is held.
	 * @return false for a key that moves nothing.
	 */
	bool Press(int Key, bool bFlying, bool bRepeated);
	void Release(int Key) { Held.erase(Key); }
	void ReleaseAll() { Held.clear(); }
	/** Of the letters only: flying is over. */
	void ReleaseLetters();

	/** How far the view has moved by now since the last call, in the view's directions; Z is up in the world. */
	FPoint3 TakeMove(double Time);

private:
	std::set<int> Held;
	/** Pressed since the last call; still counts if it was released meanwhile. */
	std::set<int> Pressed;
	double LastTime = 0.0;
};
