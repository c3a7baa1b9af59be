// Copyright Corvane. MIT License.
#include "ViewportKeys.h"

#include <map>

namespace
{
	/** Centimetres a second. */
	constexpr double Speed = 600.0;
	/** A key that is pressed and released between two frames counts as held for one. Seconds. */
	constexpr double ShortestPress = 1.0 / 60.0;
	/** After a pause, as a level that takes its time to load, the view must not have flown away. Seconds. */
	constexpr double LongestFrame = 0.25;

	const std::map<int, FPoint3>& GetArrows()
	{
		static const std::map<int, FPoint3> Arrows = {{Qt::Key_Up, {1.0, 0.0, 0.0}}, {Qt::Key_Down, {-1.0, 0.0, 0.0}},
			{Qt::Key_Right, {0.0, 1.0, 0.0}}, {Qt::Key_Left, {0.0, -1.0, 0.0}}, {Qt::Key_PageUp, {0.0, 0.0, 1.0}},
			{Qt::Key_PageDown, {0.0, 0.0, -1.0}}};
		return Arrows;
	}

	const std::map<int, FPoint3>& GetLetters()
	{
		static const std::map<int, FPoint3> Letters = {{Qt::Key_W, {1.0, 0.0, 0.0}}, {Qt::Key_S, {-1.0, 0.0, 0.0}},
			{Qt::Key_D, {0.0, 1.0, 0.0}}, {Qt::Key_A, {0.0, -1.0, 0.0}}, {Qt::Key_E, {0.0, 0.0, 1.0}},
			{Qt::Key_Q, {0.0, 0.0, -1.0}}};
		return Letters;
	}

	FPoint3 GetDirection(int Key)
	{
		const auto Arrow = GetArrows().find(Key);
		return Arrow != GetArrows().end() ? Arrow->second : GetLetters().at(Key);
	}
}

bool FViewportKeys::Press(int Key, bool bFlying, bool bRepeated)
{
	const bool bMoves = GetArrows().count(Key) != 0 || (bFlying && GetLetters().count(Key) != 0);
	if (bMoves && !bRepeated)
	{
		Held.insert(Key);
		Pressed.insert(Key);
	}
	return bMoves;
}

void FViewportKeys::ReleaseLetters()
{
	for (const auto& Letter : GetLetters())
	{
		Held.erase(Letter.first);
	}
}

FPoint3 FViewportKeys::TakeMove(double Time)
{
	const double Passed = qBound(0.0, Time - LastTime, LongestFrame);
	LastTime = Time;
	FPoint3 Move;
	for (const int Key : Held)
	{
		const double Seconds = Pressed.count(Key) != 0 ? qMax(Passed, ShortestPress) : Passed;
		Move = Move + GetDirection(Key) * (Speed * Seconds);
	}
	for (const int Key : Pressed)
	{
		Move = Held.count(Key) != 0 ? Move : Move + GetDirection(Key) * (Speed * ShortestPress);
	}
	Pressed.clear();
	return Move;
}
