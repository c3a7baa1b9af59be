// Copyright Corvane. MIT License.
#pragma once

#include "Lexer.h"

#include <string>

/** Tells names apart by how they are written. */
struct FNames
{
	/** Macros of reflection that the tool leaves out on purpose: they must not be passed over in silence. */
	static bool IsUnsupportedMacro(const std::string& Text);

	/** Any macro of reflection. */
	static bool IsReflectionMacro(const FToken& Token);

	/** One of the letters and a capital, as in "AActor". */
	static bool HasPrefix(const std::string& Name, const char* Letters);
};
