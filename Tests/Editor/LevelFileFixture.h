// Copyright Corvane. MIT License.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "TemporaryFolder.h"
#include "TestEditor.h"

/** An editor in which a level with everything in it is open, something is selected, and there are changes to save. */
class FLevelFileFixture : public ::testing::Test
{
protected:
	FLevelFileFixture();

	/** Opens a file with this text. @return the error without the file's name, empty on success. */
	std::string Open(const std::string& Text) const;

	/** Expects that a file with this text is refused with exactly this error, and that nothing changed. */
	void ExpectRefused(const std::string& Text, const std::string& Error) const;

	/** The level as text; a failure fails the test. */
	static std::string GetText();

	/** Everything about the open level that a failed load could change. */
	std::string GetState() const;

	/** A small level with actors, assets, references, structures and a component, as it is saved. */
	static const std::string SampleText;

	FTestEditor Editor;
	FTemporaryFolder Folder;
};
