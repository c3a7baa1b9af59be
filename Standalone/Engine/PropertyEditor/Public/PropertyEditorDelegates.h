// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class IDetailCustomization;
class IPropertyTypeCustomization;

/** Makes the object that lays out the details of one panel's objects. */
DECLARE_DELEGATE_RetVal(TSharedRef<IDetailCustomization>, FOnGetDetailCustomizationInstance);
/** Makes the object that lays out one value of a type. */
DECLARE_DELEGATE_RetVal(TSharedRef<IPropertyTypeCustomization>, FOnGetPropertyTypeCustomizationInstance);
