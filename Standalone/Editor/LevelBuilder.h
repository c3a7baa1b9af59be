// Copyright Corvane. MIT License.
#pragma once

struct FLevelPlan;

/** Carries out the plan of a level file in the editor. */
class FLevelBuilder
{
public:
	/**
	 * Closes the open level with its assets, its selection and its view, and makes the plan's in their place; nothing
	 * counts as changed afterwards. Runs the collector, so it must not be called from within the engine or the plugin.
	 */
	static void Replace(FLevelPlan& Plan);
};
