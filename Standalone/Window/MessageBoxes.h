// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformMisc.h"

/** Shows the engine's message boxes over a window, for as long as this lives. */
class FMessageBoxes
{
public:
	explicit FMessageBoxes(QWidget& InParent);
	FMessageBoxes(const FMessageBoxes&) = delete;
	FMessageBoxes& operator=(const FMessageBoxes&) = delete;
	~FMessageBoxes();

private:
	EAppReturnType::Type Show(EAppMsgType::Type Kind, const FText& Message, const FText& Title);

	QWidget& Parent;
};
