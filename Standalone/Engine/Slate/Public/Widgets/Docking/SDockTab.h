// Copyright Corvane. MIT License.
#pragma once

#include "Framework/Docking/TabManager.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** What kind of tab it is. */
enum ETabRole
{
	MajorTab,
	PanelTab,
	/** Belongs to no layout and can stand anywhere. */
	NomadTab,
	DocumentTab,
};

/**
 * A tab and its content, made by a tab spawner. It is laid out in 420 × 800 slate units. Its label, tooltip and icon
 * are its spawner's (FGlobalTabmanager::GetOpenTabs). Once closed it is collapsed, for whoever still holds it.
 */
class SLATE_API SDockTab : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDockTab) : _TabRole(ETabRole::PanelTab) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(ETabRole, TabRole)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	ETabRole GetTabRole() const { return TabRole; }
	void SetContent(TSharedRef<SWidget> InContent);
	TSharedRef<SWidget> GetContent();
	/** What it was opened as; empty before. */
	const FTabId& GetLayoutIdentifier() const { return LayoutIdentifier; }
	/** Closes it at once. @return true; nothing can object here. */
	bool RequestCloseTab();
	/** Open, and the one of the open tabs that is seen. */
	bool IsForeground() const;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual float ComputeChildWidthCap(int32 ChildIndex, float OwnWidthCap) const override;

private:
	/** Names the tab when it opens it. */
	friend class FGlobalTabmanager;

	ETabRole TabRole = ETabRole::PanelTab;
	FTabId LayoutIdentifier;
};
