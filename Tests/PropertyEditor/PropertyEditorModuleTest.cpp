// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

#include "Modules/ModuleManager.h"

TEST(FPropertyEditorModule, IsLoadedByItsName)
{
	const FTestEditor Editor(FTestEditor::EngineOnly());
	FPropertyEditorModule& Module = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	EXPECT_EQ(Module.GetCustomClassLayoutNames().Num(), 0);
	Module.RegisterCustomClassLayout("Actor", FTestClassLayout::Maker([](IDetailLayoutBuilder&) {}));
	EXPECT_EQ(Module.GetCustomClassLayoutNames(), TArray<FName>({"Actor"}));
}

TEST(FPropertyEditorModule, ListsTheRegisteredNames)
{
	FPropertyEditorModule Module;
	const FOnGetDetailCustomizationInstance Maker = FTestClassLayout::Maker([](IDetailLayoutBuilder&) {});
	for (const char* Name : {"Zebra", "actor", "Mouse", "ACTOR"})
	{
		Module.RegisterCustomClassLayout(Name, Maker);
	}
	EXPECT_EQ(Module.GetCustomClassLayoutNames(), TArray<FName>({"actor", "Mouse", "Zebra"}));
	Module.RegisterCustomPropertyTypeLayout("Vector", FTestTypeLayout::Maker(TEXT("v")));
	Module.RegisterCustomPropertyTypeLayout("Color", FTestTypeLayout::Maker(TEXT("c")));
	Module.RegisterCustomPropertyTypeLayout("vector", FTestTypeLayout::Maker(TEXT("v")));
	EXPECT_EQ(Module.GetCustomPropertyTypeLayoutNames(), TArray<FName>({"Color", "Vector"}));
}
