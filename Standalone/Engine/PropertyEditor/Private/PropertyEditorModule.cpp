// Copyright Corvane. MIT License.
#include "PropertyEditorModule.h"

#include "LayoutRegistry.h"
#include "Modules/ModuleManager.h"
#include "PropertyRowGenerator.h"

namespace
{
	TArray<FName> Sorted(TArray<FName> Names)
	{
		Names.StableSort([](const FName& A, const FName& B) { return A.LexicalLess(B); });
		return Names;
	}
}

FPropertyEditorModule::FPropertyEditorModule() : Layouts(MakeShared<FLayoutRegistry>()) {}

FPropertyEditorModule::~FPropertyEditorModule() = default;

void FPropertyEditorModule::RegisterCustomClassLayout(
	FName ClassName, FOnGetDetailCustomizationInstance DetailLayoutDelegate)
{
	Layouts->ClassLayouts.Add(ClassName, DetailLayoutDelegate);
}

void FPropertyEditorModule::RegisterCustomPropertyTypeLayout(FName PropertyTypeName,
	FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate, TSharedPtr<IPropertyTypeIdentifier> Identifier)
{
	Layouts->TypeLayouts.RemoveAll([&](const FLayoutRegistry::FTypeLayout& Layout)
		{ return Layout.TypeName == PropertyTypeName && Layout.Identifier == Identifier; });
	Layouts->TypeLayouts.Add({PropertyTypeName, PropertyTypeLayoutDelegate, Identifier});
}

void FPropertyEditorModule::NotifyCustomizationModuleChanged()
{
	// A copy, as whoever hears of new rows may make or drop generators.
	const TArray<TWeakPtr<FPropertyRowGenerator>> Generators = Layouts->Generators;
	for (const TWeakPtr<FPropertyRowGenerator>& Weak : Generators)
	{
		if (const TSharedPtr<FPropertyRowGenerator> Generator = Weak.Pin())
		{
			Generator->RebuildFromAnywhere();
		}
	}
}

TSharedRef<IPropertyRowGenerator> FPropertyEditorModule::CreatePropertyRowGenerator(
	const FPropertyRowGeneratorArgs& /*InArgs*/)
{
	const TSharedRef<FPropertyRowGenerator> Generator = MakeShared<FPropertyRowGenerator>(Layouts);
	Layouts->Generators.RemoveAll([](const TWeakPtr<FPropertyRowGenerator>& Weak) { return !Weak.IsValid(); });
	Layouts->Generators.Add(Generator);
	return Generator;
}

TArray<FName> FPropertyEditorModule::GetCustomClassLayoutNames() const
{
	TArray<FName> Names;
	for (const TPair<FName, FOnGetDetailCustomizationInstance>& Layout : Layouts->ClassLayouts)
	{
		Names.Add(Layout.Key);
	}
	return Sorted(Names);
}

TArray<FName> FPropertyEditorModule::GetCustomPropertyTypeLayoutNames() const
{
	TArray<FName> Names;
	for (const FLayoutRegistry::FTypeLayout& Layout : Layouts->TypeLayouts)
	{
		Names.AddUnique(Layout.TypeName);
	}
	return Sorted(Names);
}

IMPLEMENT_MODULE(FPropertyEditorModule, PropertyEditor)
