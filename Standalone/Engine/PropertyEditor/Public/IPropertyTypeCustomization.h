// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

// Whoever lays out values needs all of these.
#include "DetailWidgetRow.h"
#include "IDetailChildrenBuilder.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"

/** What a layout may ask the panel for; nothing here asks it for anything. */
class IPropertyTypeCustomizationUtils
{
public:
	virtual ~IPropertyTypeCustomizationUtils() = default;
};

/** Lays out one value of a type: its own row and those below it. Lives as long as the rows. */
class IPropertyTypeCustomization : public TSharedFromThis<IPropertyTypeCustomization>
{
public:
	virtual ~IPropertyTypeCustomization() = default;

	/** Fills the value's own row. */
	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow,
		IPropertyTypeCustomizationUtils& CustomizationUtils) = 0;
	/** Adds the rows below it. */
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder,
		IPropertyTypeCustomizationUtils& CustomizationUtils) = 0;
	/** Whether a map shows the key in the row of a value like this; there are no reflected maps here. */
	virtual bool ShouldInlineKey() const { return false; }
};
