// Copyright Corvane. MIT License.
#pragma once

#include "Specifiers.h"

#include <string>
#include <vector>

struct FReflectedProperty
{
	std::string Name;
	/** The class that the pointer, or the array's pointers, point at; empty for other types. */
	std::string PointerClass;
	FSpecifiers Specifiers;
};

/** A class or structure. */
struct FReflectedType
{
	bool bIsClass = false;
	/** With its prefix letter. */
	std::string Name;
	/** The macro that exports it, or empty. */
	std::string Api;
	/** The first base, or empty. */
	std::string Super;
	FSpecifiers Specifiers;
	std::vector<FReflectedProperty> Properties;
	int Line = 0;
	/** Of GENERATED_BODY(). */
	int BodyLine = 0;
};

struct FHeader
{
	/** As messages name it. */
	std::string Path;
	/** As generated sources include it. */
	std::string IncludePath;
	/** The file's name without extension. */
	std::string Stem;
	/** The root-relative path as an identifier, the value of CURRENT_FILE_ID. */
	std::string FileId;
	std::vector<FReflectedType> Types;
};
