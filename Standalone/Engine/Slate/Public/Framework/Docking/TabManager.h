// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Delegates/Delegate.h"
#include "Internationalization/Text.h"
#include "Templates/SharedPointer.h"
#include "Textures/SlateIcon.h"

class SDockTab;
class SWindow;

/** A tab's type and, where there may be several of one type, the instance. */
struct FTabId
{
	FTabId() = default;
	FTabId(const FName InTabType) : TabType(InTabType) {}
	FTabId(const FName InTabType, int32 InInstanceId) : TabType(InTabType), InstanceId(InInstanceId) {}

	bool operator==(const FTabId& Other) const { return TabType == Other.TabType && InstanceId == Other.InstanceId; }

	FName TabType;
	int32 InstanceId = INDEX_NONE;
};

/** What a spawner is told about the tab that it shall make. */
class FSpawnTabArgs
{
public:
	FSpawnTabArgs(const TSharedPtr<SWindow>& /*InOwnerWindow*/, const FTabId& InTabId) : TabId(InTabId) {}

	const FTabId& GetTabId() const { return TabId; }

private:
	FTabId TabId;
};

// clang-format off
DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&)
DECLARE_DELEGATE_RetVal_OneParam(bool, FCanSpawnTab, const FSpawnTabArgs&)
	// clang-format on

	/** How a type of tabs is made, and how it is shown to the user. The setters can be chained. */
	struct FTabSpawnerEntry
{
	FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab)
		: TabType(InTabType), OnSpawnTab(InSpawnTabMethod), CanSpawnTab(InCanSpawnTab)
	{}
	FTabSpawnerEntry& SetDisplayName(const FText& InLabel)
	{
		DisplayName = InLabel;
		return *this;
	}
	FTabSpawnerEntry& SetTooltipText(const FText& InTooltipText)
	{
		TooltipText = InTooltipText;
		return *this;
	}
	FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon)
	{
		Icon = InIcon;
		return *this;
	}
	/** Whether menus list the tab of their own accord. */
	FTabSpawnerEntry& SetAutoGenerateMenuEntry(bool bInShouldGenerateMenuEntry)
	{
		bAutoGenerateMenuEntry = bInShouldGenerateMenuEntry;
		return *this;
	}
	/** The tab type's name when no other was set. */
	FText GetDisplayName() const { return DisplayName.IsEmpty() ? FText::FromString(TabType.ToString()) : DisplayName; }
	const FText& GetTooltipText() const { return TooltipText; }
	const FSlateIcon& GetIcon() const { return Icon; }
	bool ShouldAutoGenerateMenuEntry() const { return bAutoGenerateMenuEntry; }

private:
	friend class FGlobalTabmanager;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	FCanSpawnTab CanSpawnTab;
	FText DisplayName;
	FText TooltipText;
	FSlateIcon Icon;
	bool bAutoGenerateMenuEntry = true;
};

/**
 * The tabs of the whole editor. An open tab outlives the unregistering of its spawner. A closed tab is kept by nobody
 * here, and neither is what was in it.
 */
class SLATE_API FGlobalTabmanager
{
public:
	/** An open tab and the spawner that made it. */
	struct FOpenTab
	{
		TSharedRef<SDockTab> Tab;
		TSharedRef<FTabSpawnerEntry> Spawner;
	};

	static const TSharedRef<FGlobalTabmanager>& Get();

	/** Fatal when the type is registered. The reference is good until the type is unregistered. */
	FTabSpawnerEntry& RegisterNomadTabSpawner(
		const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	/** Does nothing for a type that is not registered. */
	void UnregisterNomadTabSpawner(const FName TabId);
	bool HasTabSpawner(FName TabId) const;
	/** The registered types, sorted by name. The real engine has no such list. */
	TArray<FName> GetTabSpawnerNames() const;

	/**
	 * Brings the tab to the front, opening it first when it is not open. As inactive, it is opened behind the tab in
	 * front.
	 * @return the tab, or null when nobody can spawn it.
	 */
	TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive = false);
	/** The open tab of that id, or null. */
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	/** The open tabs in opening order. The real engine has no such list. */
	const TArray<FOpenTab>& GetOpenTabs() const { return OpenTabs; }
	/** The tab that is seen, or null. The real engine tells it for each tab stack on its own. */
	TSharedPtr<SDockTab> GetForegroundTab() const;

private:
	friend class SDockTab;

	/** Of the tabs that stay, the one that was opened last comes forward if the closed one was in front. */
	void CloseTab(SDockTab& Tab);

	TMap<FName, TSharedPtr<FTabSpawnerEntry>> NomadTabSpawner;
	TArray<FOpenTab> OpenTabs;
	TWeakPtr<SDockTab> ForegroundTab;
};
