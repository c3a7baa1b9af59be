// Copyright Corvane. MIT License.
#include "LayoutRegistry.h"

#include "PropertyHandle.h"

TArray<FOnGetDetailCustomizationInstance> FLayoutRegistry::FindClassLayouts(const UStruct* Class) const
{
	TArray<FOnGetDetailCustomizationInstance> Found;
	for (const TPair<FName, FOnGetDetailCustomizationInstance>& Layout : ClassLayouts)
	{
		const UStruct* Named = Class;
		while (Named && Named->GetFName() != Layout.Key)
		{
			Named = Named->GetSuperStruct();
		}
		if (Named && Layout.Value.IsBound())
		{
			Found.Add(Layout.Value);
		}
	}
	return Found;
}

FOnGetPropertyTypeCustomizationInstance FLayoutRegistry::FindTypeLayout(const IPropertyHandle& Value) const
{
	const FStructProperty* Property = CastField<FStructProperty>(Value.GetProperty());
	FOnGetPropertyTypeCustomizationInstance ForAll;
	for (int32 Index = TypeLayouts.Num() - 1; Property && Index >= 0; --Index)
	{
		const FTypeLayout& Layout = TypeLayouts[Index];
		const bool bOfType = Layout.TypeName == Property->Struct->GetFName();
		if (bOfType && Layout.Identifier.IsValid() && Layout.Identifier->IsPropertyTypeCustomized(Value))
		{
			return Layout.MakeInstance;
		}
		ForAll = bOfType && !Layout.Identifier.IsValid() ? Layout.MakeInstance : ForAll;
	}
	return ForAll;
}
