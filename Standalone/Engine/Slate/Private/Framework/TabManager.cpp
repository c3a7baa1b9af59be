// Copyright Corvane. MIT License.
#include "Framework/Docking/TabManager.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/Docking/SDockTab.h"

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance = MakeShared<FGlobalTabmanager>();
	return Instance;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(
	const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	checkf(!HasTabSpawner(TabId), TEXT("Tab spawner '%s' is registered already"), *TabId.ToString());
	return *NomadTabSpawner.Add(TabId, MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab, CanSpawnTab));
}

void FGlobalTabmanager::UnregisterNomadTabSpawner(const FName TabId)
{
	NomadTabSpawner.Remove(TabId);
}

bool FGlobalTabmanager::HasTabSpawner(FName TabId) const
{
	return NomadTabSpawner.Contains(TabId);
}

TArray<FName> FGlobalTabmanager::GetTabSpawnerNames() const
{
	TArray<FName> Names;
	for (const TPair<FName, TSharedPtr<FTabSpawnerEntry>>& Spawner : NomadTabSpawner)
	{
		Names.Add(Spawner.Key);
	}
	Names.StableSort([](const FName& First, const FName& Second) { return First.LexicalLess(Second); });
	return Names;
}

TSharedPtr<SDockTab> FGlobalTabmanager::TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive)
{
	TSharedPtr<SDockTab> Tab = FindExistingLiveTab(TabId);
	if (!Tab.IsValid())
	{
		const TSharedPtr<FTabSpawnerEntry> Spawner = NomadTabSpawner.FindRef(TabId.TabType);
		const FSpawnTabArgs Args(nullptr, TabId);
		const bool bCanSpawn = Spawner.IsValid() && Spawner->OnSpawnTab.IsBound() &&
			(!Spawner->CanSpawnTab.IsBound() || Spawner->CanSpawnTab.Execute(Args));
		if (!bCanSpawn)
		{
			return nullptr;
		}
		Tab = Spawner->OnSpawnTab.Execute(Args);
		Tab->LayoutIdentifier = TabId;
		OpenTabs.Add(FOpenTab{Tab.ToSharedRef(), Spawner.ToSharedRef()});
	}
	if (!bInvokeAsInactive || !ForegroundTab.IsValid())
	{
		ForegroundTab = Tab;
	}
	return Tab;
}

TSharedPtr<SDockTab> FGlobalTabmanager::FindExistingLiveTab(const FTabId& TabId) const
{
	const FOpenTab* Found =
		OpenTabs.FindByPredicate([&TabId](const FOpenTab& Open) { return Open.Tab->GetLayoutIdentifier() == TabId; });
	return Found ? TSharedPtr<SDockTab>(Found->Tab) : nullptr;
}

TSharedPtr<SDockTab> FGlobalTabmanager::GetForegroundTab() const
{
	return ForegroundTab.Pin();
}

void FGlobalTabmanager::CloseTab(SDockTab& Tab)
{
	const bool bWasInFront = GetForegroundTab().Get() == &Tab;
	OpenTabs.RemoveAll([&Tab](const FOpenTab& Open) { return &Open.Tab.Get() == &Tab; });
	if (bWasInFront)
	{
		ForegroundTab.Reset();
		if (OpenTabs.Num() > 0)
		{
			ForegroundTab = OpenTabs.Last().Tab;
		}
	}
}
