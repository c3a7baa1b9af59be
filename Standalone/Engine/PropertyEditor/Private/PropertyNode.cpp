// Copyright Corvane. MIT License.
#include "PropertyNode.h"

#include "EditedObjects.h"
#include "Editor.h"
#include "IPropertyRowGenerator.h"
#include "PropertyText.h"
#include "PropertyValueWidget.h"
#include "Standalone/SPropertyNameWidget.h"

bool FPropertyNode::IsValidHandle() const
{
	const void* Value = nullptr;
	return Compare(Value) != FPropertyAccess::Fail;
}

FText FPropertyNode::GetPropertyDisplayName() const
{
	if (!GetProperty() || Index != INDEX_NONE)
	{
		return GetProperty() ? FText::FromString(FString::FromInt(Index)) : FText();
	}
	const FString& DisplayName = Property->GetMetaData(TEXT("DisplayName"));
	const bool bIsBool = CastField<FBoolProperty>(Property) != nullptr;
	return FText::FromString(
		DisplayName.IsEmpty() ? FName::NameToDisplayString(Property->GetName(), bIsBool) : DisplayName);
}

FString FPropertyNode::GeneratePathToProperty() const
{
	const FString Above = GetProperty() ? Parent->GeneratePathToProperty() : FString();
	if (!GetProperty() || Index != INDEX_NONE)
	{
		return GetProperty() ? FString::Printf(TEXT("%s[%d]"), *Above, Index) : Above;
	}
	return Above.IsEmpty() ? Property->GetName() : Above + TEXT(".") + Property->GetName();
}

bool FPropertyNode::IsEditConst() const
{
	return GetProperty() && (Property->HasAnyPropertyFlags(CPF_EditConst) || Parent->IsEditConst());
}

void* FPropertyNode::FindValue(UObject* Object) const
{
	void* Container = Parent ? Parent->FindValue(Object) : Object;
	if (!Parent || !Container || Index == INDEX_NONE)
	{
		return Parent && Container ? Property->ContainerPtrToValuePtr<void>(Container) : Container;
	}
	FScriptArrayHelper Elements(static_cast<const FArrayProperty*>(Parent->Property), Container);
	return Elements.IsValidIndex(Index) ? Elements.GetRawPtr(Index) : nullptr;
}

void FPropertyNode::ForEachValue(TFunctionRef<void(UObject&, void*)> Visit) const
{
	if (const TSharedPtr<FEditedObjects> Edited = Owner.Pin())
	{
		const TGuardValue<bool> Notifying(Edited->bNotifying, true);
		LookAtValues(Visit);
	}
}

void FPropertyNode::LookAtValues(TFunctionRef<void(UObject&, void*)> Visit) const
{
	if (!GetProperty())
	{
		return;
	}
	for (const TWeakObjectPtr<UObject>& Weak : OwnerObject->Objects)
	{
		if (UObject* Object = Weak.Get())
		{
			Visit(*Object, FindValue(Object));
		}
	}
}

int32 FPropertyNode::CountObjects() const
{
	return Owner.IsValid() ? OwnerObject->Objects.Num() : 0;
}

int32 FPropertyNode::CountElements() const
{
	const FArrayProperty* Array = CastField<FArrayProperty>(Property);
	int32 Shortest = MAX_int32;
	LookAtValues(
		[&](UObject&, void* Value)
		{
			const int32 Num = Array && Value ? FScriptArrayHelper(Array, Value).Num() : 0;
			Shortest = Num < Shortest ? Num : Shortest;
		});
	return Shortest == MAX_int32 ? 0 : Shortest;
}

FPropertyAccess::Result FPropertyNode::Compare(const void*& OutValue) const
{
	bool bAllHaveIt = true;
	bool bDiffer = false;
	OutValue = nullptr;
	LookAtValues(
		[&](UObject&, void* Value)
		{
			OutValue = OutValue ? OutValue : Value;
			bAllHaveIt &= Value != nullptr;
			bDiffer = bDiffer || (bAllHaveIt && OutValue != Value && !Property->Identical(OutValue, Value));
		});
	OutValue = bAllHaveIt ? OutValue : nullptr;
	return !OutValue ? FPropertyAccess::Fail : bDiffer ? FPropertyAccess::MultipleValues : FPropertyAccess::Success;
}

FPropertyAccess::Result FPropertyNode::Read(void* OutValue) const
{
	const void* Value = nullptr;
	const FResult Result = Compare(Value);
	if (Result == FPropertyAccess::Success)
	{
		Property->CopyCompleteValue(OutValue, Value);
	}
	return Result;
}

FPropertyAccess::Result FPropertyNode::GetValueAsFormattedString(FString& OutValue) const
{
	const void* Value = nullptr;
	const FResult Result = Compare(Value);
	const bool bHasNoText = Result == FPropertyAccess::Success && !FPropertyText::Format(Property, Value, OutValue);
	return bHasNoText ? FPropertyAccess::Fail : Result;
}

FPropertyAccess::Result FPropertyNode::Write(const void* NewValue, FFlags Flags)
{
	if (!IsValidHandle())
	{
		return FPropertyAccess::Fail;
	}
	// Whoever hears of the change may drop the rows, and this with them.
	const TSharedPtr<FEditedObjects> KeptAlive = Owner.Pin();
	const bool bTransact = GEditor && (Flags & EPropertyValueSetFlags::NotTransactable) == 0;
	if (bTransact)
	{
		GEditor->BeginTransaction(FText::Format(
			NSLOCTEXT("PropertyEditor", "EditPropertyTransaction", "Edit {0}"), GetPropertyDisplayName()));
	}
	NotifyPreChange();
	ForEachValue(
		[&](UObject&, void* Value)
		{
			if (Value)
			{
				Property->CopyCompleteValue(Value, NewValue);
			}
		});
	NotifyPostChange(EPropertyChangeType::ValueSet);
	if (bTransact)
	{
		GEditor->EndTransaction();
	}
	NotifyFinishedChangingProperties();
	return FPropertyAccess::Success;
}

FPropertyAccess::Result FPropertyNode::SetValue(UObject* const& Value, FFlags Flags)
{
	const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property);
	const bool bFits = ObjectProperty && (!Value || Value->IsA(ObjectProperty->PropertyClass));
	return bFits ? Write(&Value, Flags) : FPropertyAccess::Fail;
}

FPropertyAccess::Result FPropertyNode::SetValueFromFormattedString(const FString& Value, FFlags Flags)
{
	FResult Result = FPropertyAccess::Fail;
	FPropertyText::Parse(Property, Value, [&](const void* NewValue) { Result = Write(NewValue, Flags); });
	return Result;
}

TArray<TSharedRef<FPropertyNode>> FPropertyNode::GetChildren() const
{
	const TSharedPtr<FEditedObjects> Edited = Owner.Pin();
	if (!Edited.IsValid())
	{
		return {};
	}
	if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
	{
		const int32 Num = CountElements();
		while (Children.Num() < Num)
		{
			Children.Add(MakeShared<FPropertyNode>(Owner, this, Array->Inner, Children.Num()));
		}
		if (Edited->bBuilding && NumCounted == INDEX_NONE)
		{
			Edited->CountedArrays.Add(this);
			NumCounted = Num;
		}
		return TArray<TSharedRef<FPropertyNode>>(Children.GetData(), Num);
	}
	const FStructProperty* Member = CastField<FStructProperty>(Property);
	const UStruct* Struct = Parent ? (Member ? Member->Struct : nullptr) : static_cast<const UStruct*>(Edited->Class);
	for (TFieldIterator<FProperty> It(Children.Num() == 0 ? Struct : nullptr); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Edit))
		{
			Children.Add(MakeShared<FPropertyNode>(Owner, this, *It, INDEX_NONE));
		}
	}
	return Children;
}

TSharedPtr<IPropertyHandle> FPropertyNode::GetChildHandle(FName ChildName, bool bRecurse) const
{
	TArray<const FPropertyNode*> Searched = {this};
	for (int32 Next = 0; Next < Searched.Num(); ++Next)
	{
		for (const TSharedRef<FPropertyNode>& Child : Searched[Next]->GetChildren())
		{
			// The elements of an array have no names.
			if (Child->Index == INDEX_NONE && Child->Property->GetFName() == ChildName)
			{
				return Child;
			}
			if (bRecurse && Child->Index == INDEX_NONE)
			{
				Searched.Add(&*Child);
			}
		}
	}
	return nullptr;
}

TSharedPtr<IPropertyHandle> FPropertyNode::GetChildHandle(uint32 ChildIndex) const
{
	const TArray<TSharedRef<FPropertyNode>> All = GetChildren();
	const bool bExists = ChildIndex < static_cast<uint32>(All.Num());
	return bExists ? TSharedPtr<IPropertyHandle>(All[static_cast<int32>(ChildIndex)]) : nullptr;
}

FPropertyAccess::Result FPropertyNode::GetNumChildren(uint32& OutNumChildren) const
{
	const bool bValid = IsValidHandle();
	OutNumChildren = bValid ? static_cast<uint32>(GetChildren().Num()) : OutNumChildren;
	return bValid ? FPropertyAccess::Success : FPropertyAccess::Fail;
}

TSharedRef<SWidget> FPropertyNode::CreatePropertyNameWidget(
	const FText& NameOverride, const FText&, bool, bool bDisplayText, bool) const
{
	if (!bDisplayText)
	{
		return SNullWidget::NullWidget;
	}
	return SNew(SPropertyNameWidget).Text(NameOverride).PropertyHandle(AsShared());
}

TSharedRef<SWidget> FPropertyNode::CreatePropertyValueWidget(bool) const
{
	return FPropertyValueWidget::Make(const_cast<FPropertyNode*>(this)->AsShared());
}

void FPropertyNode::AccessRawData(TArray<void*>& RawData)
{
	RawData.Reserve(RawData.Num() + CountObjects());
	LookAtValues([&](UObject&, void* Value) { RawData.Add(Value); });
}

void FPropertyNode::AccessRawData(TArray<const void*>& RawData) const
{
	RawData.Reserve(RawData.Num() + CountObjects());
	LookAtValues([&](UObject&, void* Value) { RawData.Add(Value); });
}

void FPropertyNode::GetOuterObjects(TArray<UObject*>& OuterObjects) const
{
	OuterObjects.Reserve(OuterObjects.Num() + CountObjects());
	LookAtValues([&](UObject& Object, void*) { OuterObjects.Add(&Object); });
}

FPropertyChangedEvent FPropertyNode::MakeEvent(EPropertyChangeType::Type ChangeType) const
{
	const FPropertyNode* Member = this;
	while (Member->Parent->Parent)
	{
		Member = Member->Parent;
	}
	FPropertyChangedEvent Event(Property, ChangeType);
	Event.MemberProperty = Member->Property;
	return Event;
}

void FPropertyNode::NotifyPreChange()
{
	ForEachValue([this](UObject& Object, void*)
		{ Object.PreEditChange(MakeEvent(EPropertyChangeType::Unspecified).MemberProperty); });
}

void FPropertyNode::NotifyPostChange(EPropertyChangeType::Type ChangeType)
{
	ForEachValue(
		[&](UObject& Object, void*)
		{
			FPropertyChangedEvent Event = MakeEvent(ChangeType);
			Object.PostEditChangeProperty(Event);
		});
}

void FPropertyNode::NotifyFinishedChangingProperties()
{
	const TSharedPtr<FEditedObjects> Edited = Owner.Pin();
	if (const auto Generator = Edited.IsValid() ? Edited->Generator.Pin() : TSharedPtr<IPropertyRowGenerator>())
	{
		const TGuardValue<bool> Notifying(Edited->bNotifying, true);
		Generator->OnFinishedChangingProperties().Broadcast(MakeEvent(EPropertyChangeType::ValueSet));
	}
}
