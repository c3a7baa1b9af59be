// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"

/** Fills a pattern by the rules of FText::Format. */
FString FormatPattern(const FString& Pattern, const TArray<FText>& Arguments);
