// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class IDetailGroup;
class IDetailPropertyRow;
class IPropertyHandle;

/** Where in its category a property's row goes. */
namespace EPropertyLocation
{
	enum Type
	{
		/** As the property was declared. */
		Default,
		Common,
		/** Into the part that is folded away. */
		Advanced,
	};
}

/** Where in the panel a category goes: a lower one further up. */
namespace ECategoryPriority
{
	enum Type
	{
		Variable = 0,
		Transform,
		Important,
		TypeSpecific,
		Default,
		Uncommon,
	};
}

/** Lays out one category. */
class IDetailCategoryBuilder
{
public:
	virtual ~IDetailCategoryBuilder() = default;

	/** Appends the properties that belong to the category by declaration and are not hidden. */
	virtual void GetDefaultProperties(TArray<TSharedRef<IPropertyHandle>>& OutAllProperties,
		bool bSimpleProperties = true, bool bAdvancedProperties = true) = 0;
	/** A row for the property, which then gets none by itself. */
	virtual IDetailPropertyRow& AddProperty(
		TSharedPtr<IPropertyHandle> PropertyHandle, EPropertyLocation::Type Location = EPropertyLocation::Default) = 0;
	/** A group, always a new one, whatever its name. */
	virtual IDetailGroup& AddGroup(
		FName GroupName, const FText& LocalizedDisplayName, bool bForAdvanced = false, bool bStartExpanded = false) = 0;
};
