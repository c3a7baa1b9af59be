// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"

/** Texts of the engine as Qt's, and back. Both keep UTF-16 units as they are, lone surrogates too. */
class FWindowText
{
public:
	static QString ToQt(const FString& Text);
	static QString ToQt(const FText& Text) { return ToQt(Text.ToString()); }
	static QString ToQt(FName Name) { return ToQt(Name.ToString()); }
	static FString FromQt(const QString& Text);

	/** As one line for a caption or a message: line breaks and control characters become blanks, an "&" stays one. */
	static QString ForCaption(const FString& Text);
	static QString ForCaption(const FText& Text) { return ForCaption(Text.ToString()); }
};
