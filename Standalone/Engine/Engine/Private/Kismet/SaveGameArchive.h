// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class FArrayProperty;
class FProperty;
class UStruct;

/**
 * Reflected properties as bytes, to and from.
 *
 * A structure is its members, each one's name, type, length and value, and an empty name at their end, so that a later
 * version of the program finds what it still knows: a member that it does not know, or that has another type, is passed
 * over, and one that is missing keeps its value. Transient properties and references to objects are left out, and of a
 * text all but its source. Numbers are as in memory, strings are UTF-16 after their length.
 *
 * Bytes may come from anywhere: no length in them is believed, and what is allocated stays in
 * proportion to what they hold.
 */
class FSaveGameArchive
{
public:
	/** Reads Bytes, or fills them, which must be empty. */
	FSaveGameArchive(TArray<uint8>& InBytes, bool bInLoading) : Bytes(InBytes), bLoading(bInLoading) {}

	/** @return false for malformed bytes, and for structures that lie deeper in each other than can be read. */
	bool SerializeMembers(const UStruct* Struct, void* Container);
	bool SerializeString(FString& Value);
	bool IsAtEnd() const { return Position == Bytes.Num(); }

private:
	bool LoadMembers(const UStruct* Struct, void* Container);
	bool SaveMembers(const UStruct* Struct, void* Container);
	bool SerializeValue(const FProperty* Property, void* Value);
	bool SerializeArray(const FArrayProperty* Property, void* Array);
	bool SerializeBytes(void* Data, int32 Num);

	TArray<uint8>& Bytes;
	const bool bLoading;
	/** Of the string that is read, kept to be used again. */
	TArray<TCHAR> Units;
	int32 Position = 0;
	int32 Depth = 0;
};
