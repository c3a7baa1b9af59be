// Copyright Corvane. MIT License.
#include "DetailsUser.h"

#include "Framework/Docking/TabManager.h"
#include "IPropertyRowGenerator.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "UObject/UnrealType.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"

#include "ZAVSpoutReceiverInterface.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
	const TCHAR* const DetailsTab = TEXT("QuillonEditorDetailsUser");

	FText GetFirstText(const TSharedPtr<SWidget>& Widget)
	{
		const TArray<TSharedRef<SWidget>> Texts = Widget.IsValid()
			? FWidgetUser::FindAll(Widget.ToSharedRef(), TEXT("STextBlock"))
			: TArray<TSharedRef<SWidget>>();
		return Texts.Num() > 0 ? StaticCastSharedRef<STextBlock>(Texts[0])->GetText() : FText::GetEmpty();
	}
}

FDetailsUser::FDetailsUser(const TArray<UObject*>& Objects)
{
	FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	Generator = PropertyEditor.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	Generator->SetObjects(Objects);
	Generator->OnFinishedChangingProperties().AddLambda([this](const FPropertyChangedEvent&) { ++NumFinishedChanges; });
	ReadRows(Generator->GetRootTreeNodes(), INDEX_NONE);
}

FDetailsUser::~FDetailsUser()
{
	CloseTab();
}

void FDetailsUser::ReadRows(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, int32 Above)
{
	for (const TSharedRef<IDetailTreeNode>& Node : Nodes)
	{
		const int32 Row = Rows.Add(FRow{Node, Node->CreateNodeWidgets(), Above});
		TArray<TSharedRef<IDetailTreeNode>> Children;
		Node->GetChildren(Children);
		ReadRows(Children, Row);
	}
}

void FDetailsUser::ShowInTab(const TSharedRef<SWidget>& Widget)
{
	CloseTab();
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(DetailsTab,
		FOnSpawnTab::CreateLambda(
			[Widget](const FSpawnTabArgs&)
			{
				const TSharedRef<SDockTab> NewTab = SNew(SDockTab).TabRole(ETabRole::NomadTab);
				NewTab->SetContent(Widget);
				return NewTab;
			}));
	Tab = FGlobalTabmanager::Get()->TryInvokeTab(FTabId(DetailsTab));
}

void FDetailsUser::CloseTab()
{
	if (Tab.IsValid())
	{
		Tab->RequestCloseTab();
		Tab.Reset();
		FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(DetailsTab);
	}
}

int32 FDetailsUser::FindRow(const TCHAR* Name, int32 Above) const
{
	for (int32 Row = 0; Row < Rows.Num(); ++Row)
	{
		int32 Up = Rows[Row].Above;
		while (Above != INDEX_NONE && Up != INDEX_NONE && Up != Above)
		{
			Up = Rows[Up].Above;
		}
		if ((Above == INDEX_NONE || Up == Above) && GetName(Row).ToString().Equals(Name))
		{
			return Row;
		}
	}
	return INDEX_NONE;
}

int32 FDetailsUser::FindReceiver(int32 Number) const
{
	for (int32 Row = 0; Row < Rows.Num(); ++Row)
	{
		const TSharedPtr<IPropertyHandle> Handle = Rows[Row].Node->CreatePropertyHandle();
		const FStructProperty* Property =
			Handle.IsValid() ? CastField<FStructProperty>(Handle->GetProperty()) : nullptr;
		if (Property && Property->Struct == FZAVSpoutReceiverInterface::StaticStruct() && Number-- == 0)
		{
			return Row;
		}
	}
	return INDEX_NONE;
}

TArray<int32> FDetailsUser::GetRowsBelow(int32 Row) const
{
	TArray<int32> Below;
	for (int32 Index = 0; Index < Rows.Num(); ++Index)
	{
		if (Rows[Index].Above == Row)
		{
			Below.Add(Index);
		}
	}
	return Below;
}

FString FDetailsUser::GetNamesBelow(int32 Row) const
{
	FString Names;
	for (const int32 Below : GetRowsBelow(Row))
	{
		Names += GetName(Below).ToString() + TEXT("; ");
	}
	return Names;
}

FText FDetailsUser::GetName(int32 Row) const
{
	return GetRow(Row) ? GetFirstText(GetRow(Row)->Widgets.NameWidget) : FText::GetEmpty();
}

FText FDetailsUser::GetValue(int32 Row) const
{
	return GetRow(Row) ? GetFirstText(GetRow(Row)->Widgets.ValueWidget) : FText::GetEmpty();
}

FString FDetailsUser::GetFilter(int32 Row) const
{
	TArray<FString> Strings;
	if (GetRow(Row))
	{
		GetRow(Row)->Node->GetFilterStrings(Strings);
	}
	FString Filter;
	for (const FString& String : Strings)
	{
		Filter += String + TEXT("; ");
	}
	return Filter;
}

TSharedPtr<IDetailTreeNode> FDetailsUser::GetNode(int32 Row) const
{
	return GetRow(Row) ? GetRow(Row)->Node : TSharedPtr<IDetailTreeNode>();
}

TArray<TSharedRef<SWidget>> FDetailsUser::FindInValue(int32 Row, const TCHAR* Type) const
{
	return GetRow(Row) && GetRow(Row)->Widgets.ValueWidget.IsValid()
		? FWidgetUser::FindAll(GetRow(Row)->Widgets.ValueWidget.ToSharedRef(), Type)
		: TArray<TSharedRef<SWidget>>();
}

ECheckBoxState FDetailsUser::GetCheck(int32 Row) const
{
	const TArray<TSharedRef<SWidget>> Boxes = FindInValue(Row, TEXT("SCheckBox"));
	return Boxes.Num() > 0 ? StaticCastSharedRef<SCheckBox>(Boxes[0])->GetCheckedState() : ECheckBoxState::Undetermined;
}

void FDetailsUser::Click(int32 Row)
{
	for (const TSharedRef<SWidget>& Box : FindInValue(Row, TEXT("SCheckBox")))
	{
		ShowInTab(Box);
		FWidgetUser::Click(Box);
	}
}

void FDetailsUser::Choose(int32 Row, const FString& Option)
{
	typedef SComboBox<TSharedPtr<FString>> FDropDown;
	for (const TSharedRef<SWidget>& Widget : FindInValue(Row, TEXT("SComboBox<TSharedPtr<FString>>")))
	{
		// Another string of the same text: the list's own is out of reach.
		StaticCastSharedRef<FDropDown>(Widget)->SetSelectedItem(MakeShared<FString>(Option));
	}
}

#endif
