// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>
#include <memory>
#include <vector>

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "WindowContext.h"

class FSlateHost;
class SDockTab;

/** The tabs that modules have opened, a dock of the main window each. */
class FTabDocks
{
public:
	/** Adds a dock to the window where tabs of that kind open; it may be placed elsewhere by what the user did last. */
	using FAddDock = std::function<void(QDockWidget*)>;

	FTabDocks(FWindowContext& InContext, const FAddDock& InAddDock);
	FTabDocks(const FTabDocks&) = delete;
	FTabDocks& operator=(const FTabDocks&) = delete;
	~FTabDocks();

	/** Opens, closes and raises docks as the tabs have been, and brings up to date what is seen of them. */
	void Poll();

	/** Of the open tabs, in opening order. */
	std::vector<QDockWidget*> GetDocks() const;
	/** The dock of the tab of that id, as spelled by its spawner; null if it is not open. */
	QDockWidget* Find(const QString& TabId) const;

private:
	struct FEntry;
	class FTabDock;

	void AddNew();
	void RemoveClosed();
	void FollowForeground();
	/** Who has opened a tab to type into it can do so at once. */
	static void FocusFirstBox(FEntry& Entry);

	FWindowContext& Context;
	FAddDock AddDock;
	std::vector<std::unique_ptr<FEntry>> Entries;
	TWeakPtr<SDockTab> LastForeground;
};
