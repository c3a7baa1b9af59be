// Copyright Corvane. MIT License.
#pragma once

#include "Descriptor.h"

#include <string>

/** Reads lines, and never holds more of one than a line may have. */
class FLineReader
{
public:
	enum class EResult
	{
		/** The last line may lack its line feed. */
		Line,
		/** A line beyond the limit; it was skipped up to its line feed. */
		TooLong,
		End,
		/** errno says why. */
		Failed,
		/** Something happened at the watched descriptor. */
		Disturbed
	};

	/** MaxLength is in bytes, the line feed not counted. */
	FLineReader(FDescriptor InInput, size_t InMaxLength) : Input(std::move(InInput)), MaxLength(InMaxLength) {}

	/**
	 * Waits for the next line; OutLine is without its line feed.
	 * @param Watched another descriptor that ends the waiting as soon as it can be read or breaks; negative for none.
	 */
	EResult Next(std::string& OutLine, int Watched = -1);

	int GetHandle() const { return Input.Get(); }

private:
	/** Reads more. @return Line if something came. */
	EResult Fill(int Watched);

	FDescriptor Input;
	size_t MaxLength;
	/** What was read beyond the last line, from Begin on. */
	std::string Buffer;
	size_t Begin = 0;
};
