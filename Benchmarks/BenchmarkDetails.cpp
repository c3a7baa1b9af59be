// Copyright Corvane. MIT License.
#include "BenchmarkDetails.h"

#include "IPropertyRowGenerator.h"
#include "Layout/Children.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Widgets/SWidget.h"

namespace
{
	TSharedPtr<SWidget> Find(const TSharedRef<SWidget>& Root, const char* Type)
	{
		if (Root->GetType() == FName(Type))
		{
			return Root;
		}
		for (int32 Index = 0; Index < Root->GetChildren()->Num(); ++Index)
		{
			const TSharedPtr<SWidget> Found = Find(Root->GetChildren()->GetChildAt(Index), Type);
			if (Found.IsValid())
			{
				return Found;
			}
		}
		return nullptr;
	}
}

FBenchmarkDetails::FBenchmarkDetails(const TArray<UObject*>& Objects)
	: Generator(FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor")
					.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs()))
{
	Generator->SetObjects(Objects);
	Read(Generator->GetRootTreeNodes(), false);
}

void FBenchmarkDetails::Read(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, bool bInGroup)
{
	for (const TSharedRef<IDetailTreeNode>& Node : Nodes)
	{
		const TSharedPtr<SWidget> Value = Node->CreateNodeWidgets().ValueWidget;
		if (Value.IsValid())
		{
			(bInGroup ? FlagBoxes : Values).push_back(Value.ToSharedRef());
		}
		TArray<TSharedRef<IDetailTreeNode>> Children;
		Node->GetChildren(Children);
		Read(Children, Node->IsGroup());
	}
}

TSharedPtr<SWidget> FBenchmarkDetails::FindInDropDown(const char* Type) const
{
	TSharedPtr<SWidget> DropDown;
	for (size_t Index = 0; !DropDown.IsValid() && Index < Values.size(); ++Index)
	{
		DropDown = Find(Values[Index], "SComboBox<TSharedPtr<FString>>");
	}
	return Find(DropDown.ToSharedRef(), Type);
}

std::vector<TSharedRef<SWidget>> FBenchmarkDetails::GetFlagBoxes() const
{
	return FlagBoxes;
}
