// Copyright Corvane. MIT License.
#pragma once

#include "PropertyEditorModule.h"

class FPropertyRowGenerator;
class UStruct;

/** The registered layouts, and the generators that use them. Outlives the module while there are generators. */
class FLayoutRegistry
{
public:
	/** The layouts for objects of the class, in the order of their registration. */
	TArray<FOnGetDetailCustomizationInstance> FindClassLayouts(const UStruct* Class) const;
	/** The layout for the value, unbound if there is none. */
	FOnGetPropertyTypeCustomizationInstance FindTypeLayout(const IPropertyHandle& Value) const;

	struct FTypeLayout
	{
		FName TypeName;
		FOnGetPropertyTypeCustomizationInstance MakeInstance;
		TSharedPtr<IPropertyTypeIdentifier> Identifier;
	};

	TMap<FName, FOnGetDetailCustomizationInstance> ClassLayouts;
	/** In the order of their registration. */
	TArray<FTypeLayout> TypeLayouts;
	TArray<TWeakPtr<FPropertyRowGenerator>> Generators;
};
