// Copyright Corvane. MIT License.
#include "DetailsPanel.h"

#include "Editor.h"
#include "Engine/Selection.h"
#include "EngineText.h"
#include "GameFramework/Actor.h"
#include "IPropertyRowGenerator.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/Class.h"

namespace
{
	TArray<AActor*> GetSelectedActors()
	{
		TArray<AActor*> Actors;
		GEditor->GetSelectedActors()->GetSelectedObjects(Actors);
		return Actors;
	}

	/** The actor's component of the name and class of another one's, or null. */
	UActorComponent* FindCounterpart(const AActor* Actor, const UActorComponent* Component)
	{
		TArray<UActorComponent*> Components;
		Actor->GetComponents(Components);
		UActorComponent** Found = Components.FindByPredicate(
			[Component](const UActorComponent* Candidate) {
				return Candidate->GetFName() == Component->GetFName() && Candidate->GetClass() == Component->GetClass();
			});
		return Found ? *Found : nullptr;
	}

	/** One list a component of the first actor that all others have as well. */
	std::vector<TArray<UObject*>> FindCommonComponents(const TArray<AActor*>& Actors)
	{
		std::vector<TArray<UObject*>> Lists;
		TArray<UActorComponent*> Components;
		Actors[0]->GetComponents(Components);
		for (const UActorComponent* Component : Components)
		{
			TArray<UObject*> Counterparts;
			for (const AActor* Actor : Actors)
			{
				if (UActorComponent* Counterpart = FindCounterpart(Actor, Component))
				{
					Counterparts.Add(Counterpart);
				}
			}
			if (Counterparts.Num() == Actors.Num())
			{
				Lists.push_back(Counterparts);
			}
		}
		return Lists;
	}
}

FDetailsPanel::FDetailsPanel()
{
	SelectionHandle = USelection::SelectionChangedEvent.AddRaw(this, &FDetailsPanel::FollowSelection);
}

FDetailsPanel::~FDetailsPanel()
{
	USelection::SelectionChangedEvent.Remove(SelectionHandle);
}

void FDetailsPanel::FollowSelection(UObject* /*Selection*/)
{
	Close();
}

void FDetailsPanel::Close()
{
	++Version;
	Categories.clear();
	Generators.clear();
	// Numbers go on: one of a row that is gone must not name another.
	Ids.clear();
	bBuilt = false;
}

bool FDetailsPanel::ShowsSelection() const
{
	int32 Index = 0;
	const TArray<AActor*> Selected = GetSelectedActors();
	for (const TWeakObjectPtr<AActor>& Actor : BuiltFor)
	{
		// One that has gone is selected no more, and its rows show nothing.
		if (Actor.IsValid() && !(Selected.IsValidIndex(Index) && Selected[Index++] == Actor.Get()))
		{
			return false;
		}
	}
	return Index == Selected.Num();
}

const std::vector<FDetailsPanel::FCategory>& FDetailsPanel::GetCategories()
{
	if (bBuilt && !ShowsSelection())
	{
		Close();
	}
	if (!bBuilt)
	{
		Build();
	}
	for (const TSharedRef<IPropertyRowGenerator>& Generator : Generators)
	{
		Generator->RefreshIfOutdated();
	}
	if (bRowsOutdated)
	{
		ReadRows();
	}
	return Categories;
}

void FDetailsPanel::Build()
{
	bBuilt = true;
	bRowsOutdated = true;
	const TArray<AActor*> Actors = GetSelectedActors();
	BuiltFor.Empty();
	for (AActor* Actor : Actors)
	{
		BuiltFor.Add(Actor);
	}
	// Another module may have unloaded it.
	if (Actors.Num() == 0 || !FModuleManager::Get().IsModuleLoaded("PropertyEditor"))
	{
		return;
	}
	TArray<UObject*> Objects;
	for (AActor* Actor : Actors)
	{
		Objects.Add(Actor);
	}
	AddGenerator(Objects);
	for (const TArray<UObject*>& Components : FindCommonComponents(Actors))
	{
		AddGenerator(Components);
	}
}

void FDetailsPanel::AddGenerator(const TArray<UObject*>& Objects)
{
	FPropertyEditorModule& Module = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	const TSharedRef<IPropertyRowGenerator> Generator = Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	Generator->OnRowsRefreshed().AddLambda([this]() { bRowsOutdated = true; });
	Generators.push_back(Generator);
	Generator->SetObjects(Objects);
}

void FDetailsPanel::ReadRows()
{
	bRowsOutdated = false;
	++Version;
	PlacesRead.clear();
	Categories.clear();
	for (size_t Index = 0; Index < Generators.size(); ++Index)
	{
		for (const TSharedRef<IDetailTreeNode>& Node : Generators[Index]->GetRootTreeNodes())
		{
			FCategory Category;
			Category.Name = FDetailsRow(Node).GetName();
			NumGroups = 0;
			TArray<TSharedRef<IDetailTreeNode>> Nodes;
			Node->GetChildren(Nodes);
			const std::string Place = std::to_string(Index) + "/" + FEngineText::ForDisplay(Node->GetNodeName());
			ReadNodes(Nodes, nullptr, Place, Category);
			Categories.push_back(std::move(Category));
		}
	}
}

void FDetailsPanel::ReadNodes(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, const FDetailsRow* Above,
	const std::string& Place, FCategory& Category)
{
	for (int32 Index = 0; Index < Nodes.Num(); ++Index)
	{
		if (Nodes[Index]->IsGroup())
		{
			ReadGroup(Nodes[Index], Place, Category);
			continue;
		}
		FDetailsRow Row(Nodes[Index]);
		// A property's row is the same wherever it stands; any other one has nothing but its place.
		const std::string Own =
			Place + "/" + (Row.Path.IsEmpty() ? std::to_string(Index) : FEngineText::ForDisplay(Row.Path));
		Row.Id = GetId(Own);
		Row.bAdvanced = Nodes[Index]->IsAdvanced() || (Above && Above->bAdvanced);
		if (Above)
		{
			Row.ParentId = Above->Id;
			Row.Group = Above->Group;
			Row.GroupIndex = Above->GroupIndex;
			Row.bGroupCollapsed = Above->bGroupCollapsed;
		}
		Category.Rows.push_back(Row);
		TArray<TSharedRef<IDetailTreeNode>> Below;
		Nodes[Index]->GetChildren(Below);
		ReadNodes(Below, &Row, Own, Category);
	}
}

void FDetailsPanel::ReadGroup(const TSharedRef<IDetailTreeNode>& Group, const std::string& Place, FCategory& Category)
{
	FDetailsRow Header(Group);
	Header.Group = Header.GetName();
	Header.GroupIndex = NumGroups++;
	Header.bGroupCollapsed = Group->GetInitiallyCollapsed();
	Header.bAdvanced = Group->IsAdvanced();
	TArray<TSharedRef<IDetailTreeNode>> Rows;
	Group->GetChildren(Rows);
	ReadNodes(Rows, &Header, Place + "/group " + std::to_string(Header.GroupIndex), Category);
}

int32 FDetailsPanel::GetId(const std::string& Place)
{
	std::string Free = Place;
	// A property may be shown twice.
	while (!PlacesRead.insert(Free).second)
	{
		Free += " again";
	}
	const auto Found = Ids.emplace(Free, NextId);
	NextId += Found.second ? 1 : 0;
	return Found.first->second;
}
