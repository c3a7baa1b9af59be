// Copyright Corvane. MIT License.
#include "Misc/CoreDelegates.h"

FCoreDelegates::FOnModalMessageBox FCoreDelegates::ModalErrorMessage;
FCoreDelegates::FShouldLaunchUrl FCoreDelegates::ShouldLaunchUrl;
