// Copyright Corvane. MIT License.
#include "DetailsFixture.h"

#include <cstdlib>

#include "DetailCustomisations/ActiveSenderNameOptions.h"
#include "DetailCustomisations/ActiveSenderNamesCustomisation.h"
#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"
#include "Engine/World.h"
#include "Framework/Docking/TabManager.h"
#include "IPropertyRowGenerator.h"
#include "Layout/Children.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UserInput.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Text/STextBlock.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"
#include "ZAVSpoutNames.h"
#include "ZAVSpoutReceiverManager.h"

FDetailsRows::FDetailsRows(const TArray<UObject*>& Objects)
	: Generator(FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor")
					.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs()))
{
	Generator->SetObjects(Objects);
	Read(Generator->GetRootTreeNodes(), 0);
}

void FDetailsRows::Read(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, int Depth)
{
	for (const TSharedRef<IDetailTreeNode>& Node : Nodes)
	{
		const FNodeWidgets Widgets = Node->CreateNodeWidgets();
		Rows.push_back({Node, Widgets, TextOf(Widgets.NameWidget), Depth});
		TArray<TSharedRef<IDetailTreeNode>> Children;
		Node->GetChildren(Children);
		Read(Children, Depth + 1);
	}
}

const FDetailsRows::FRow& FDetailsRows::Get(const std::string& Name) const
{
	for (const FRow& Row : Rows)
	{
		if (Row.Name == Name)
		{
			return Row;
		}
	}
	ADD_FAILURE() << "no row " << Name;
	std::abort();
}

bool FDetailsRows::Has(const std::string& Name) const
{
	for (const FRow& Row : Rows)
	{
		if (Row.Name == Name)
		{
			return true;
		}
	}
	return false;
}

std::string FDetailsRows::Describe() const
{
	std::string Description;
	int Depth = 0;
	for (const FRow& Row : Rows)
	{
		for (; Depth > Row.Depth; --Depth)
		{
			Description += " )";
		}
		Description += Depth < Row.Depth ? "( " : Description.empty() ? "" : " ";
		Description += Row.Name + (Row.Node->IsAdvanced() ? "*" : "");
		Depth = Row.Depth;
	}
	return Description + (Depth > 0 ? " )" : "");
}

const FDetailsRows::FRow& FDetailsRows::GetSenderRow() const
{
	for (const FRow& Row : Rows)
	{
		if (Find(Row.Widgets.ValueWidget, "SComboBox<TSharedPtr<FString>>"))
		{
			return Row;
		}
	}
	ADD_FAILURE() << "no drop-down";
	std::abort();
}

SComboButton& FDetailsRows::GetDropDown() const
{
	return static_cast<SComboButton&>(*Find(GetSenderRow().Widgets.ValueWidget, "SComboBox<TSharedPtr<FString>>"));
}

std::string FDetailsRows::GetLabel() const
{
	return TextOf(GetSenderRow().Widgets.ValueWidget);
}

SCheckBox& FDetailsRows::GetBox(const std::string& Name) const
{
	return static_cast<SCheckBox&>(*Find(Get(Name).Widgets.ValueWidget, "SCheckBox"));
}

void FDetailsRows::Click(const std::string& Name) const
{
	const TSharedRef<SWidget> Box = GetBox(Name).AsShared();
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner("DetailsRows",
		FOnSpawnTab::CreateLambda(
			[Box](const FSpawnTabArgs&)
			{
				const TSharedRef<SDockTab> NewTab = SNew(SDockTab);
				NewTab->SetContent(Box);
				return NewTab;
			}));
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->TryInvokeTab(FTabId("DetailsRows"));
	EXPECT_TRUE(FUserInput::Click(Box));
	Tab->RequestCloseTab();
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("DetailsRows");
}

TSharedPtr<SWidget> FDetailsRows::Find(const TSharedPtr<SWidget>& Root, const char* Type)
{
	if (!Root.IsValid() || Root->GetType() == FName(Type))
	{
		return Root;
	}
	for (int32 Index = 0; Index < Root->GetChildren()->Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Found = Find(Root->GetChildren()->GetChildAt(Index), Type))
		{
			return Found;
		}
	}
	return nullptr;
}

std::string FDetailsRows::TextOf(const TSharedPtr<SWidget>& Root)
{
	return Find(Root, "STextBlock") ? TCHAR_TO_UTF8(GetTextBlock(Root).GetText().ToString()) : "";
}

const STextBlock& FDetailsRows::GetTextBlock(const TSharedPtr<SWidget>& Root)
{
	return static_cast<const STextBlock&>(*Find(Root, "STextBlock"));
}

FDetailsFixture::FDetailsFixture() : Editor(FTestEditor::EngineOnly())
{
	GetPropertyEditor().RegisterCustomPropertyTypeLayout("ZAVSpoutReceiverInterface",
		FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FActiveSenderNamesCustomisation::MakeInstance));
	GetPropertyEditor().RegisterCustomClassLayout("ZAVCaptureComponent",
		FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
	FActiveSenderNameOptions::Get().Options.Empty();
	SetSenders({});
}

FDetailsFixture::~FDetailsFixture()
{
	SetSenders({});
}

FPropertyEditorModule& FDetailsFixture::GetPropertyEditor()
{
	return FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
}

void FDetailsFixture::SetSenders(const TArray<FString>& Names)
{
	ZAVSpoutNames::SetActiveSenderNames(Names);
}

AZAVSpoutReceiverManager& FDetailsFixture::SpawnReceiver(bool bUseFirstAvailable, const TCHAR* Name)
{
	AZAVSpoutReceiverManager* Manager = Editor.GetWorld().SpawnActor<AZAVSpoutReceiverManager>();
	Manager->SpoutReceivers[0].UseFirstAvailableSender = bUseFirstAvailable;
	Manager->SpoutReceivers[0].Name = Name;
	return *Manager;
}

UZAVCaptureComponent& FDetailsFixture::SpawnCaptureComponent()
{
	return *Editor.GetWorld().SpawnActor<AZAVCineCamCapture>()->CaptureComponent;
}
