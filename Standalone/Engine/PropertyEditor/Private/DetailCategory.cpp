// Copyright Corvane. MIT License.
#include "DetailCategory.h"

namespace
{
	bool IsDeclaredAdvanced(const FPropertyNode& Property)
	{
		return Property.GetProperty() && Property.GetProperty()->HasAnyPropertyFlags(CPF_AdvancedDisplay);
	}
}

FDetailCategory::FDetailCategory(FName InName) : FDetailRow(InName, false)
{
	SetTitle(FText::FromString(FName::NameToDisplayString(InName.ToString(), false)));
}

void FDetailCategory::GetDefaultProperties(
	TArray<TSharedRef<IPropertyHandle>>& OutAllProperties, bool bSimpleProperties, bool bAdvancedProperties)
{
	for (const TSharedRef<FPropertyNode>& Property : DefaultProperties)
	{
		const bool bWanted = IsDeclaredAdvanced(*Property) ? bAdvancedProperties : bSimpleProperties;
		if (bWanted && !Property->IsHiddenByCustomization())
		{
			OutAllProperties.Add(Property);
		}
	}
}

IDetailPropertyRow& FDetailCategory::AddProperty(
	TSharedPtr<IPropertyHandle> PropertyHandle, EPropertyLocation::Type Location)
{
	const TSharedRef<FPropertyNode> Property = StaticCastSharedPtr<FPropertyNode>(PropertyHandle).ToSharedRef();
	Property->MarkHiddenByCustomization();
	const bool bDeclared = Location == EPropertyLocation::Default;
	return AddPropertyRow(
		Property, bDeclared ? IsDeclaredAdvanced(*Property) : Location == EPropertyLocation::Advanced);
}

void FDetailCategory::Edit(const FText& NewDisplayName, ECategoryPriority::Type NewPriority)
{
	Priority = NewPriority;
	if (!bNamed && !NewDisplayName.IsEmpty())
	{
		bNamed = true;
		SetTitle(NewDisplayName);
	}
}

void FDetailCategory::AddDefaultRows()
{
	TArray<TSharedRef<IPropertyHandle>> Rest;
	GetDefaultProperties(Rest, true, true);
	for (const TSharedRef<IPropertyHandle>& Property : Rest)
	{
		AddProperty(Property, EPropertyLocation::Default);
	}
	Children.StableSort([](const TSharedRef<FDetailRow>& A, const TSharedRef<FDetailRow>& B)
		{ return !A->IsAdvanced() && B->IsAdvanced(); });
}

bool FDetailCategory::HasRows() const
{
	return Children.ContainsByPredicate([](const TSharedRef<FDetailRow>& Child) { return Child->IsListed(); });
}
