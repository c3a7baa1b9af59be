// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class IPropertyHandle;
class SWidget;

/** Makes the widgets that show and edit values as long as nobody lays them out in another way. */
class FPropertyValueWidget
{
public:
	static TSharedRef<SWidget> Make(const TSharedRef<IPropertyHandle>& Handle);
};
