// Copyright Corvane. MIT License.
#pragma once

/**
 * Which way the keyboard focus goes. What the user does moves Qt's focus, and the engine's follows; while the window is
 * brought up to date it is the other way round: widgets that are hidden, disabled or deleted then hand Qt's focus to
 * whatever is next, which nobody has asked for.
 */
class FFocusSync
{
public:
	/** Nothing is told to the engine in the scope of this. */
	class FFromEngine
	{
	public:
		FFromEngine() { ++Depth; }
		FFromEngine(const FFromEngine&) = delete;
		FFromEngine& operator=(const FFromEngine&) = delete;
		~FFromEngine() { --Depth; }
	};

	static bool IsFromEngine() { return Depth > 0; }

private:
	static int Depth;
};
