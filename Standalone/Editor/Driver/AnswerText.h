// Copyright Corvane. MIT License.
#pragma once

#include "Driver/Request.h"

#include "CoreMinimal.h"

struct FSlateBrush;
struct FSlateIcon;

/** Texts and pictures of the editor as answers show them. */
class FAnswerText
{
public:
	/** Adds two members: Name with what the text shows, and Name + "Id" with its identity. */
	static void Add(FAnswer& Answer, const std::string& Name, const FText& Text);

	/** @return "namespace,key", or null for a text without identity. */
	static FAnswer Id(const FText& Text);

	/** @return style set and brush in the letters in which they were written, or null for no icon. */
	static FAnswer Icon(const FSlateIcon& Icon);
	static FAnswer Icon(const FName& Style, const FName& Brush);
	/** @return the same of a brush by where it is registered; null also for one that no registered style has. */
	static FAnswer Icon(const FSlateBrush* Brush);
};
