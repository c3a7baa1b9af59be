// Copyright Corvane. MIT License.
#pragma once

#include "Model.h"
#include "TokenStream.h"

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
