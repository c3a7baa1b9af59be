// Copyright Corvane. MIT License.
#pragma once

/** Makes automation specs run as GoogleTest cases. */
struct FAutomationBridge
{
	/**
	 * Registers each It of each spec that is known by now, so call it after the specs' modules were loaded and before
	 * RUN_ALL_TESTS; a second call registers the specs that came since. The suite is called like the automation spec,
	 * the case like its sentence, each run of other characters than ASCII letters and digits as one underscore; a name
	 * that comes again gets a number.
	 * @return how many cases were registered.
	 */
	static int RegisterSpecs();
};
