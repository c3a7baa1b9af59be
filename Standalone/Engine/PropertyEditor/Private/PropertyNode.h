// Copyright Corvane. MIT License.
#pragma once

#include "PropertyHandle.h"

class FEditedObjects;

/**
 * One property of the edited objects, shared by all who ask for it. Where the values are is found out anew at each
 * access, as arrays move their elements. Nodes are kept by those above them, up to the top of the tree, which is no
 * property and has the objects' class below it. A node without owner is an invalid handle.
 */
class FPropertyNode : public IPropertyHandle
{
public:
	typedef FPropertyAccess::Result FResult;
	typedef EPropertyValueSetFlags::Type FFlags;

	/** @param InIndex which element of the array above it is; INDEX_NONE for a member. */
	FPropertyNode(
		const TWeakPtr<FEditedObjects>& InOwner, const FPropertyNode* InParent, FProperty* InProperty, int32 InIndex)
		: Owner(InOwner), OwnerObject(InOwner.Pin().Get()), Parent(InParent), Property(InProperty), Index(InIndex)
	{}

	virtual bool IsValidHandle() const override;
	virtual FProperty* GetProperty() const override { return Owner.IsValid() ? Property : nullptr; }
	virtual FText GetPropertyDisplayName() const override;
	virtual FString GeneratePathToProperty() const override;
	virtual bool IsEditConst() const override;

	virtual FResult GetValue(bool& OutValue) const override { return Get<FBoolProperty>(&OutValue); }
	virtual FResult GetValue(int32& OutValue) const override { return Get<FIntProperty>(&OutValue); }
	virtual FResult GetValue(float& OutValue) const override { return Get<FFloatProperty>(&OutValue); }
	virtual FResult GetValue(FString& OutValue) const override { return Get<FStrProperty>(&OutValue); }
	virtual FResult GetValue(FName& OutValue) const override { return Get<FNameProperty>(&OutValue); }
	virtual FResult GetValue(FText& OutValue) const override { return Get<FTextProperty>(&OutValue); }
	virtual FResult GetValue(UObject*& OutValue) const override { return Get<FObjectProperty>(&OutValue); }
	virtual FResult GetValueAsFormattedString(FString& OutValue) const override;

	virtual FResult SetValue(const bool& Value, FFlags Flags) override { return Set<FBoolProperty>(&Value, Flags); }
	virtual FResult SetValue(const int32& Value, FFlags Flags) override { return Set<FIntProperty>(&Value, Flags); }
	virtual FResult SetValue(const float& Value, FFlags Flags) override { return Set<FFloatProperty>(&Value, Flags); }
	virtual FResult SetValue(const FString& Value, FFlags Flags) override { return Set<FStrProperty>(&Value, Flags); }
	virtual FResult SetValue(const TCHAR* Value, FFlags Flags) override { return SetValue(FString(Value), Flags); }
	virtual FResult SetValue(const FName& Value, FFlags Flags) override { return Set<FNameProperty>(&Value, Flags); }
	virtual FResult SetValue(const FText& Value, FFlags Flags) override { return Set<FTextProperty>(&Value, Flags); }
	virtual FResult SetValue(UObject* const& Value, FFlags Flags) override;
	virtual FResult SetValueFromFormattedString(const FString& Value, FFlags Flags) override;

	virtual TSharedPtr<IPropertyHandle> GetChildHandle(FName ChildName, bool bRecurse) const override;
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(uint32 ChildIndex) const override;
	virtual FResult GetNumChildren(uint32& OutNumChildren) const override;

	virtual TSharedRef<SWidget> CreatePropertyNameWidget(const FText& NameOverride, const FText& ToolTipOverride,
		bool bDisplayResetToDefault, bool bDisplayText, bool bDisplayThumbnail) const override;
	virtual TSharedRef<SWidget> CreatePropertyValueWidget(bool bDisplayDefaultPropertyButtons) const override;

	virtual void MarkHiddenByCustomization() override { bHiddenByCustomization = true; }
	bool IsHiddenByCustomization() const { return bHiddenByCustomization; }

	virtual void AccessRawData(TArray<void*>& RawData) override;
	virtual void AccessRawData(TArray<const void*>& RawData) const override;
	virtual void GetOuterObjects(TArray<UObject*>& OuterObjects) const override;

	virtual void NotifyPreChange() override;
	virtual void NotifyPostChange(EPropertyChangeType::Type ChangeType) override;
	virtual void NotifyFinishedChangingProperties() override;

	/** What a panel may show below: a structure's members, or the elements that all objects have. */
	TArray<TSharedRef<FPropertyNode>> GetChildren() const;
	/** Whether an array has another length than when it was counted for the rows. */
	bool HasOtherLength() const { return CountElements() != NumCounted; }

private:
	/** Where the object has the value, or null. */
	void* FindValue(UObject* Object) const;
	/** Visits the objects that are still there, and where they have the value. */
	void ForEachValue(TFunctionRef<void(UObject&, void*)> Visit) const;
	/** The same for visits that only look. Windows do so all the time, and keeping the owner alive takes longer. */
	void LookAtValues(TFunctionRef<void(UObject&, void*)> Visit) const;
	/** How many objects there were when the rows were built. */
	int32 CountObjects() const;
	/** Whether the objects agree on the value. @param OutValue that of the first one; null on Fail. */
	FResult Compare(const void*& OutValue) const;
	/** OutValue and NewValue are of the property's type. */
	FResult Read(void* OutValue) const;
	FResult Write(const void* NewValue, FFlags Flags);
	template <typename PropertyType>
	FResult Get(void* OutValue) const
	{
		return CastField<PropertyType>(Property) ? Read(OutValue) : FPropertyAccess::Fail;
	}
	template <typename PropertyType>
	FResult Set(const void* NewValue, FFlags Flags)
	{
		return CastField<PropertyType>(Property) ? Write(NewValue, Flags) : FPropertyAccess::Fail;
	}

	/** The length of the shortest of the objects' arrays; 0 of what is no array. */
	int32 CountElements() const;
	/** Of the object's own property that this one is or lies in. */
	FPropertyChangedEvent MakeEvent(EPropertyChangeType::Type ChangeType) const;

	TWeakPtr<FEditedObjects> Owner;
	/** Good while Owner is valid. */
	const FEditedObjects* OwnerObject;
	/** There as long as the owner is. */
	const FPropertyNode* Parent;
	FProperty* Property;
	int32 Index;
	bool bHiddenByCustomization = false;
	/** Made when first asked for; elements that are gone meanwhile stay, as they may come back. */
	mutable TArray<TSharedRef<FPropertyNode>> Children;
	mutable int32 NumCounted = INDEX_NONE;
};
