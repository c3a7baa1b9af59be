// Copyright Corvane. MIT License.
#include "DetailLayout.h"

#include "DetailCategory.h"
#include "IDetailCustomization.h"
#include "IPropertyTypeCustomization.h"
#include "LayoutRegistry.h"

FDetailLayout::FDetailLayout(const TSharedRef<FEditedObjects>& InEdited, const TSharedRef<FLayoutRegistry>& InLayouts)
	: Edited(InEdited), Layouts(InLayouts)
{}

FDetailLayout::~FDetailLayout()
{
	for (const TSharedRef<FDetailCategory>& Category : Categories)
	{
		Category->Clear();
	}
}

void FDetailLayout::Build()
{
	const TGuardValue<bool> Building(Edited->bBuilding, true);
	for (const TSharedRef<FPropertyNode>& Property : Edited->Root->GetChildren())
	{
		// What the object owns has a panel of its own.
		if (!Property->GetProperty()->HasAnyPropertyFlags(CPF_InstancedReference))
		{
			const FString& Name = Property->GetProperty()->GetMetaData(TEXT("Category"));
			FDetailCategory& Category = FindOrAddCategory(Name.IsEmpty() ? Edited->Class->GetFName() : FName(*Name));
			Category.DefaultProperties.Add(Property);
		}
	}
	for (const FOnGetDetailCustomizationInstance& MakeInstance : Layouts->FindClassLayouts(Edited->Class))
	{
		const TSharedRef<IDetailCustomization> Instance = MakeInstance.Execute();
		ClassLayouts.Add(Instance);
		Instance->CustomizeDetails(*this);
	}
	TArray<TSharedRef<FDetailCategory>> Sorted = Categories;
	Sorted.StableSort([](const TSharedRef<FDetailCategory>& A, const TSharedRef<FDetailCategory>& B)
		{ return A->Priority < B->Priority; });
	for (const TSharedRef<FDetailCategory>& Category : Sorted)
	{
		Category->AddDefaultRows();
		Category->Finish(*this);
		if (Category->HasRows())
		{
			RootNodes.Add(Category);
		}
	}
}

FDetailCategory& FDetailLayout::FindOrAddCategory(FName Name)
{
	const auto IsWanted = [Name](const TSharedRef<FDetailCategory>& Category)
	{ return Category->GetNodeName() == Name; };
	const int32 Found = Categories.IndexOfByPredicate(IsWanted);
	return *Categories[Found == INDEX_NONE ? Categories.Add(MakeShared<FDetailCategory>(Name)) : Found];
}

IDetailCategoryBuilder& FDetailLayout::EditCategory(
	FName CategoryName, const FText& NewLocalizedDisplayName, ECategoryPriority::Type CategoryType)
{
	FDetailCategory& Category = FindOrAddCategory(CategoryName);
	Category.Edit(NewLocalizedDisplayName, CategoryType);
	return Category;
}

TSharedRef<IPropertyHandle> FDetailLayout::GetProperty(
	const FName PropertyPath, const UClass* ClassOutermost, FName /*InstanceName*/)
{
	TSharedPtr<IPropertyHandle> Found = Edited->Root;
	FString Rest = PropertyPath.ToString();
	while (Found.IsValid() && !Rest.IsEmpty())
	{
		const int32 Dot = Rest.Find(TEXT("."));
		const FName Part(*Rest.Left(Dot == INDEX_NONE ? Rest.Len() : Dot));
		const bool bOfClass = Found != Edited->Root || !ClassOutermost ||
			ClassOutermost->FindPropertyByName(Part) == Edited->Class->FindPropertyByName(Part);
		Found = bOfClass ? Found->GetChildHandle(Part, false) : nullptr;
		Rest = Dot == INDEX_NONE ? FString() : Rest.RightChop(Dot + 1);
	}
	const bool bExists = Found.IsValid() && Found->GetProperty();
	return bExists ? Found.ToSharedRef() : MakeShared<FPropertyNode>(nullptr, nullptr, nullptr, INDEX_NONE);
}

bool FDetailLayout::CustomizeValue(
	const TSharedRef<FPropertyNode>& Property, FDetailWidgetRow& Row, IDetailChildrenBuilder& ChildrenBuilder)
{
	const FOnGetPropertyTypeCustomizationInstance MakeInstance = Layouts->FindTypeLayout(*Property);
	if (!MakeInstance.IsBound())
	{
		return false;
	}
	const TSharedRef<IPropertyTypeCustomization> Instance = MakeInstance.Execute();
	TypeLayouts.Add(Instance);
	IPropertyTypeCustomizationUtils Utils;
	Instance->CustomizeHeader(Property, Row, Utils);
	Instance->CustomizeChildren(Property, ChildrenBuilder, Utils);
	return true;
}
