// Copyright Corvane. MIT License.
#pragma once

#include "Delegates/Delegate.h"
#include "GenericPlatform/GenericPlatformMisc.h"
#include "Internationalization/Text.h"

/** Where the program that the engine runs in takes over from the engine. Each is unbound until somebody binds it. */
class CORE_API FCoreDelegates
{
public:
	typedef TDelegate<EAppReturnType::Type(EAppMsgType::Type, const FText&, const FText&)> FOnModalMessageBox;
	typedef TDelegate<bool(const TCHAR*)> FShouldLaunchUrl;

	/**
	 * Shows a message box, with message and title in this order, and returns the button that closed it. The title is
	 * empty where the caller gave none; the real engine has a title of its own for that case.
	 */
	static FOnModalMessageBox ModalErrorMessage;

	/** Whether FPlatformProcess::LaunchURL shall pass the address on. */
	static FShouldLaunchUrl ShouldLaunchUrl;
};
