// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"
#include "Internationalization/Text.h"

/** Makes the localised texts that stand in the code. */
class CORE_API FInternationalization
{
public:
	/**
	 * The text of this identity. Texts of one identity share their data: a literal in a function that is called again
	 * and again is built once.
	 */
	static FText ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(
		const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey);
};

/** A text in the namespace LOCTEXT_NAMESPACE, which each file defines before and undefines after use. Narrow literals
 * only. */
#define LOCTEXT(InKey, InTextLiteral) \
	FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText( \
		TEXT(InTextLiteral), TEXT(LOCTEXT_NAMESPACE), TEXT(InKey))

/** A text with its namespace. Narrow literals only. */
#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) \
	FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText( \
		TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey))

/** A text that is not to be translated. */
#define INVTEXT(InTextLiteral) FText::AsCultureInvariant(TEXT(InTextLiteral))
