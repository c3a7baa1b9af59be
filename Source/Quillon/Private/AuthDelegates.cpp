// Copyright Corvane. MIT License.
#include "AuthDelegates.h"

TMulticastDelegate<void(FString, FString)> AuthDelegates::OnUpgradeAvailable;
