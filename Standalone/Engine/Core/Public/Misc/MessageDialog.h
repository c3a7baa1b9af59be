// Copyright Corvane. MIT License.
#pragma once

#include "GenericPlatform/GenericPlatformMisc.h"
#include "Internationalization/Text.h"

/** Message boxes. */
struct CORE_API FMessageDialog
{
	/**
	 * Shows a modal message box through FCoreDelegates::ModalErrorMessage. While that is unbound the message goes to
	 * standard error, and the answer is the one that starts nothing: Ok where it is the only button, else No or Cancel.
	 */
	static EAppReturnType::Type Open(
		EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle = nullptr);

	/** What a box that nobody sees answers: the button that changes nothing. The real engine keeps it to itself. */
	static EAppReturnType::Type GetDefaultAnswer(EAppMsgType::Type MessageType);
};
