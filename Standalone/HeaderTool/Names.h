// Copyright Corvane. MIT License.
#pragma once

#include "Lexer.h"

#include <string>

/** Macros of reflection that the tool leaves out on purpose: they must not be passed over in silence. */
bool IsUnsupportedMacro(const std::string& Text);

/** Any macro of reflection. */
bool IsReflectionMacro(const FToken& Token);

/** One of the letters and a capital, as in "AActor". */
bool HasPrefix(const std::string& Name, const char* Letters);
