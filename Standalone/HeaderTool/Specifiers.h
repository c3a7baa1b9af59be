// Copyright Corvane. MIT License.
#pragma once

#include "TokenStream.h"

#include <string>
#include <vector>

/** A key and its value as it stands in a string literal. */
struct FMetaData
{
	std::string Key;
	std::string Value;
};

/** What the specifiers of a macro say. */
struct FSpecifiers
{
	/** Names of engine flags. */
	std::vector<std::string> Flags;
	std::vector<FMetaData> MetaData;

	bool HasMetaData(const std::string& Key) const;
	bool HasFlag(const std::string& Flag) const;
};

/** Which macro the specifiers belong to. */
enum class ESpecifierPlace
{
	Class,
	Struct,
	Property,
	Function
};

/** Reads the parenthesised list after a macro's name; throws FSourceError for what the macro does not know. */
FSpecifiers ReadSpecifiers(FTokenStream& Tokens, ESpecifierPlace Place);
