// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"

/** Texts of the engine in lists and pictures. */
class FPanelText
{
public:
	/** On one line; without the doubled "&" of captions, as nothing here underlines letters. */
	static QString OneLine(const FString& Text);

	/** Whether each word of Search occurs in one of the texts, whatever the case. */
	static bool Matches(const QString& Search, std::initializer_list<QStringView> Texts);
};
