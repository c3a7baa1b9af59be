// Copyright Corvane. MIT License.
#pragma once

#include <string>

#include "CoreMinimal.h"

/**
 * The bytes of a save slot's file: a mark that tells it from any other file, the format's version, the payload's length
 * and checksum, the payload. Numbers are little-endian. No file that differs in one bit, or was cut off, is taken for a
 * sound one.
 */
class FSlotFile
{
public:
	/** In bytes. More is refused before it is read. */
	static constexpr size_t MaxSize = size_t(16) << 20U;

	static std::string Pack(const TArray<uint8>& Payload);

	/** @return false with the reason, and OutPayload as it was, for a file of another kind, a damaged or a newer one.
	 */
	static bool Unpack(const std::string& File, TArray<uint8>& OutPayload, std::string& OutReason);
};
