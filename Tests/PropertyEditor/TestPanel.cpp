// Copyright Corvane. MIT License.
#include "TestPanel.h"

#include "Editor.h"
#include "Editor/Transactor.h"
#include "UObject/Package.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

int32 FTestClassLayout::NumAlive = 0;
int32 FTestTypeLayout::NumAlive = 0;

namespace
{
	typedef TArray<TSharedRef<IDetailTreeNode>> FNodes;

	FNodes GetChildren(IDetailTreeNode& Node)
	{
		FNodes Children;
		Node.GetChildren(Children);
		return Children;
	}

	std::string NameOf(const IDetailTreeNode& Node)
	{
		return FTestPanel::TextOf(Node.CreateNodeWidgets().NameWidget);
	}

	std::string DescribeNodes(const FNodes& Nodes)
	{
		std::string Result;
		for (const TSharedRef<IDetailTreeNode>& Node : Nodes)
		{
			const FNodes Children = GetChildren(*Node);
			Result += (Result.empty() ? "" : " ") + NameOf(*Node) + (Node->IsGroup() ? "#" : "") +
				(Node->IsAdvanced() ? "*" : "") + (Children.Num() > 0 ? "(" + DescribeNodes(Children) + ")" : "");
		}
		return Result;
	}

	/** The first row, from the top down, that shows the property. */
	TSharedPtr<IDetailTreeNode> FindRow(const FNodes& Nodes, const FString& PropertyPath)
	{
		for (const TSharedRef<IDetailTreeNode>& Node : Nodes)
		{
			const TSharedPtr<IPropertyHandle> Shown = Node->CreatePropertyHandle();
			if (Shown.IsValid() && Shown->GeneratePathToProperty().Equals(PropertyPath))
			{
				return Node;
			}
			const TSharedPtr<IDetailTreeNode> Below = FindRow(GetChildren(*Node), PropertyPath);
			if (Below.IsValid())
			{
				return Below;
			}
		}
		return nullptr;
	}

	IDetailTreeNode& FindRowChecked(const IPropertyRowGenerator& Generator, const FString& PropertyPath)
	{
		const TSharedPtr<IDetailTreeNode> Row = FindRow(Generator.GetRootTreeNodes(), PropertyPath);
		checkf(Row.IsValid(), TEXT("no row shows %s"), *PropertyPath);
		return *Row;
	}
}

FOnGetDetailCustomizationInstance FTestClassLayout::Maker(const FLayOut& InLayOut)
{
	return FOnGetDetailCustomizationInstance::CreateLambda(
		[InLayOut]() -> TSharedRef<IDetailCustomization> { return MakeShared<FTestClassLayout>(InLayOut); });
}

FOnGetPropertyTypeCustomizationInstance FTestTypeLayout::Maker(const FHeader& InHeader, const FChildren& InChildren)
{
	return FOnGetPropertyTypeCustomizationInstance::CreateLambda(
		[InHeader, InChildren]() -> TSharedRef<IPropertyTypeCustomization>
		{ return MakeShared<FTestTypeLayout>(InHeader, InChildren); });
}

FOnGetPropertyTypeCustomizationInstance FTestTypeLayout::Maker(const TCHAR* RowName)
{
	const FString Name = RowName;
	return Maker([](const TSharedRef<IPropertyHandle>&, FDetailWidgetRow&) {},
		[Name](const TSharedRef<IPropertyHandle>&, IDetailChildrenBuilder& Builder)
		{
			FDetailWidgetRow& Row = Builder.AddCustomRow(FText());
			Row.NameContent()[FTestPanel::TextWidget(*Name)];
			Row.ValueContent()[FTestPanel::TextWidget(*(Name + TEXT("'s value")))];
		});
}

FTestPanel::FTestPanel()
	: Editor(FTestEditor::EngineOnly()),
	  Package(CreatePackage(TEXT("/Game/Panel"))),
	  Generator(Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs()))
{
	UPanelObject::Heard.clear();
	UPanelObject::OnHeard = nullptr;
	Generator->OnRowsRefreshed().AddLambda([this]() { ++NumRefreshed; });
	Generator->OnFinishedChangingProperties().AddLambda([this](const FPropertyChangedEvent& Event)
		{ Finished += ToString(Event.MemberProperty->GetName()) + "/" + ToString(Event.Property->GetName()) + ","; });
}

std::string FTestPanel::Describe() const
{
	return DescribeNodes(Generator->GetRootTreeNodes());
}

std::string FTestPanel::Describe(const TCHAR* Category) const
{
	for (const TSharedRef<IDetailTreeNode>& Root : Generator->GetRootTreeNodes())
	{
		if (Root->GetNodeName() == FName(Category))
		{
			return DescribeNodes(GetChildren(*Root));
		}
	}
	return "no such category";
}

TSharedPtr<IDetailTreeNode> FTestPanel::FindNode(const std::string& Path) const
{
	FNodes Nodes = Generator->GetRootTreeNodes();
	TSharedPtr<IDetailTreeNode> Found;
	for (size_t Begin = 0; Begin <= Path.size();)
	{
		const size_t End = std::min(Path.find('/', Begin), Path.size());
		const std::string Name = Path.substr(Begin, End - Begin);
		const TSharedRef<IDetailTreeNode>* Next =
			Nodes.FindByPredicate([&Name](const TSharedRef<IDetailTreeNode>& Node) { return NameOf(*Node) == Name; });
		if (!Next)
		{
			return nullptr;
		}
		Found = *Next;
		Nodes = GetChildren(*Found);
		Begin = End + 1;
	}
	return Found;
}

IDetailTreeNode& FTestPanel::Node(const std::string& Path) const
{
	const TSharedPtr<IDetailTreeNode> Found = FindNode(Path);
	checkf(Found.IsValid(), TEXT("there is no row %hs"), Path.c_str());
	return *Found;
}

TSharedRef<IPropertyHandle> FTestPanel::Handle(const TCHAR* PropertyPath) const
{
	return FindRowChecked(*Generator, PropertyPath).CreatePropertyHandle().ToSharedRef();
}

TSharedRef<SWidget> FTestPanel::ValueWidget(const TCHAR* PropertyPath) const
{
	return FindRowChecked(*Generator, PropertyPath).CreateNodeWidgets().ValueWidget.ToSharedRef();
}

std::string FTestPanel::TextOf(const TSharedPtr<SWidget>& Widget)
{
	if (!Widget.IsValid())
	{
		return "";
	}
	if (Widget->GetType() == "STextBlock")
	{
		return ToString(StaticCastSharedPtr<STextBlock>(Widget)->GetText().ToString());
	}
	if (Widget->GetType() == "SEditableTextBox")
	{
		return ToString(StaticCastSharedPtr<SEditableTextBox>(Widget)->GetText().ToString());
	}
	return Widget->GetChildren()->Num() > 0 ? TextOf(Widget->GetChildren()->GetChildAt(0)) : "";
}

TSharedRef<SWidget> FTestPanel::TextWidget(const TCHAR* Text)
{
	return SNew(STextBlock).Text(FText::FromString(Text));
}

bool FTestPanel::IsDirty() const
{
	return Package->IsDirty();
}

void FTestPanel::Save() const
{
	Package->SetDirtyFlag(false);
}

int32 FTestPanel::CountUndoSteps() const
{
	int32 Num = 0;
	while (GEditor->UndoTransaction())
	{
		++Num;
	}
	for (int32 Index = 0; Index < Num; ++Index)
	{
		GEditor->RedoTransaction();
	}
	return Num;
}
