// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"

class SWidget;

/** How an access to a value went. */
namespace FPropertyAccess
{
	enum Result
	{
		/** The edited objects differ. */
		MultipleValues,
		/** There is no such value, or it is of another type. */
		Fail,
		Success,
	};
}

/** How a value is set. */
namespace EPropertyValueSetFlags
{
	typedef uint32 Type;

	enum : uint32
	{
		DefaultFlags = 0,
		/** Can't be undone. */
		NotTransactable = 1u << 0,
	};
}

/**
 * One reflected value of all edited objects together.
 *
 * Reading leaves OutValue as it is unless it answers Success. Setting tells each object before and after
 * (UObject::PreEditChange, PostEditChangeProperty), whatever is set; if a value becomes another one, it is an undo step
 * of its own and marks the package dirty.
 */
class IPropertyHandle : public TSharedFromThis<IPropertyHandle>
{
public:
	virtual ~IPropertyHandle() = default;

	/** Whether there is such a property, and objects that have it. */
	virtual bool IsValidHandle() const = 0;
	/** Null for an invalid handle. */
	virtual FProperty* GetProperty() const = 0;
	/** As the panel names it: "Use First Available Sender", or an element's index. */
	virtual FText GetPropertyDisplayName() const = 0;
	/** "SpoutReceivers[0].Name": from the edited object to the value. */
	virtual FString GeneratePathToProperty() const = 0;
	/** Shown, but not to be changed in a panel. */
	virtual bool IsEditConst() const = 0;

	virtual FPropertyAccess::Result GetValue(bool& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int32& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(float& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FString& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FName& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FText& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(UObject*& OutValue) const = 0;
	/** A number, text, name, object or bool as it stands in an edit box. */
	virtual FPropertyAccess::Result GetValueAsFormattedString(FString& OutValue) const = 0;

	virtual FPropertyAccess::Result SetValue(
		const bool& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(
		const int32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(
		const float& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(
		const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(
		const TCHAR* InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(
		const FName& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(
		const FText& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	/** Fails for an object that is not of the property's class. */
	virtual FPropertyAccess::Result SetValue(
		UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	/** What was typed into an edit box; fails, with nothing changed, for what the type can't hold. */
	virtual FPropertyAccess::Result SetValueFromFormattedString(
		const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;

	/** The value's member of that name, or null; with bRecurse that of a member's member, the nearest first. */
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(FName ChildName, bool bRecurse = true) const = 0;
	/** A structure's member or an array's element, or null. */
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(uint32 Index) const = 0;
	/** Counts what a panel may show; of arrays that differ in length, the elements that all have. */
	virtual FPropertyAccess::Result GetNumChildren(uint32& OutNumChildren) const = 0;

	/**
	 * Shows the display name, or NameOverride.
	 * @param bDisplayText false shows nothing. Tooltips, reset arrows and thumbnails are not made here.
	 */
	virtual TSharedRef<SWidget> CreatePropertyNameWidget(const FText& NameOverride = FText::GetEmpty(),
		const FText& ToolTipOverride = FText::GetEmpty(), bool bDisplayResetToDefault = false, bool bDisplayText = true,
		bool bDisplayThumbnail = true) const = 0;
	/** Shows and edits the value: a check box, an edit box, or how many members or elements there are. */
	virtual TSharedRef<SWidget> CreatePropertyValueWidget(bool bDisplayDefaultPropertyButtons = true) const = 0;

	/** The panel makes no row of its own for the property. */
	virtual void MarkHiddenByCustomization() = 0;

	/** Appends where each edited object has the value; in the order of GetOuterObjects, null if one has none. */
	virtual void AccessRawData(TArray<void*>& RawData) = 0;
	virtual void AccessRawData(TArray<const void*>& RawData) const = 0;
	/** Appends the edited objects. */
	virtual void GetOuterObjects(TArray<UObject*>& OuterObjects) const = 0;

	/** Tell the objects what is done to the raw data. None of the three opens an undo step. */
	virtual void NotifyPreChange() = 0;
	virtual void NotifyPostChange(EPropertyChangeType::Type ChangeType = EPropertyChangeType::Unspecified) = 0;
	virtual void NotifyFinishedChangingProperties() = 0;
};
