// Copyright Corvane. MIT License.
#include "TabDocks.h"

#include <algorithm>
#include <utility>

#include "FocusSync.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "SlateHost.h"
#include "WidgetFinder.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "WindowImages.h"
#include "WindowText.h"

/** Its cross closes the engine's tab, which then takes the dock along. */
class FTabDocks::FTabDock final : public QDockWidget
{
public:
	explicit FTabDock(const TSharedRef<SDockTab>& InTab) : Tab(InTab) {}

protected:
	void closeEvent(QCloseEvent* Event) override
	{
		const TSharedPtr<SDockTab> Pinned = Tab.Pin();
		if (Pinned.IsValid())
		{
			Pinned->RequestCloseTab();
		}
		QDockWidget::closeEvent(Event);
	}

private:
	TWeakPtr<SDockTab> Tab;
};

struct FTabDocks::FEntry
{
	TWeakPtr<SDockTab> Tab;
	QPointer<FTabDock> Dock;
	/** It has been opened by somebody who sees it, and nothing in it has had the focus yet. */
	bool bWantsFocus = false;
	/** Children of the dock. */
	QScrollArea* Area = nullptr;
	FSlateHost* Host = nullptr;

	~FEntry()
	{
		if (Dock)
		{
			Dock->hide();
			Dock->deleteLater();
		}
	}
};

FTabDocks::FTabDocks(FWindowContext& InContext, const FAddDock& InAddDock) : Context(InContext), AddDock(InAddDock) {}

FTabDocks::~FTabDocks() = default;

void FTabDocks::Poll()
{
	const FFocusSync::FFromEngine FromEngine;
	RemoveClosed();
	AddNew();
	FollowForeground();
	for (const std::unique_ptr<FEntry>& Entry : Entries)
	{
		const TSharedPtr<SDockTab> Tab = Entry->Tab.Pin();
		if (!Tab.IsValid() || !Entry->Host->isVisible())
		{
			continue;
		}
		// The content may be another one by now.
		Entry->Host->SetRoot(Tab->GetContent());
		Entry->Host->Poll();
		// What is higher than the dock is scrolled to; what is wider is cut off, as the engine does.
		Entry->Host->setMinimumHeight(Entry->Host->sizeHint().height());
		if (std::exchange(Entry->bWantsFocus, false))
		{
			FocusFirstBox(*Entry);
		}
	}
}

void FTabDocks::FocusFirstBox(FEntry& Entry)
{
	const TSharedPtr<SWidget> Content = Entry.Host->GetRoot();
	const TArray<TSharedRef<SEditableTextBox>> Boxes = Content.IsValid()
		? FWidgetFinder(Content.ToSharedRef()).GetEditBoxes()
		: TArray<TSharedRef<SEditableTextBox>>();
	if (Boxes.Num() > 0)
	{
		FSlateApplication::Get().SetKeyboardFocus(Boxes[0], EFocusCause::SetDirectly);
	}
}

std::vector<QDockWidget*> FTabDocks::GetDocks() const
{
	std::vector<QDockWidget*> Docks;
	for (const std::unique_ptr<FEntry>& Entry : Entries)
	{
		Docks.push_back(Entry->Dock);
	}
	return Docks;
}

void FTabDocks::RemoveClosed()
{
	const TArray<FGlobalTabmanager::FOpenTab>& Open = FGlobalTabmanager::Get()->GetOpenTabs();
	const auto IsClosed = [&Open](const std::unique_ptr<FEntry>& Entry)
	{
		const TSharedPtr<SDockTab> Tab = Entry->Tab.Pin();
		return !Entry->Dock || !Tab.IsValid() ||
			std::none_of(Open.begin(), Open.end(),
				[&Tab](const FGlobalTabmanager::FOpenTab& Candidate) { return Candidate.Tab == Tab; });
	};
	Entries.erase(std::remove_if(Entries.begin(), Entries.end(), IsClosed), Entries.end());
}

void FTabDocks::AddNew()
{
	for (const FGlobalTabmanager::FOpenTab& Open : FGlobalTabmanager::Get()->GetOpenTabs())
	{
		const bool bKnown = std::any_of(Entries.begin(), Entries.end(),
			[&Open](const std::unique_ptr<FEntry>& Entry) { return Entry->Tab.Pin() == Open.Tab; });
		if (bKnown)
		{
			continue;
		}
		auto Entry = std::make_unique<FEntry>();
		Entry->Tab = Open.Tab;
		Entry->Dock = new FTabDock(Open.Tab);
		Entry->Dock->setObjectName(QStringLiteral("Tab.") + FWindowText::ToQt(Open.Tab->GetLayoutIdentifier().TabType));
		Entry->Dock->setWindowTitle(FWindowText::ForCaption(Open.Spawner->GetDisplayName()));
		Entry->Dock->setWindowIcon(FWindowImages::GetIcon(Open.Spawner->GetIcon()));
		Entry->Dock->setToolTip(FWindowText::ToQt(Open.Spawner->GetTooltipText()));
		Entry->Area = new QScrollArea(Entry->Dock);
		Entry->Area->setFrameShape(QFrame::NoFrame);
		Entry->Area->setWidgetResizable(true);
		Entry->Area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
		Entry->Area->setFocusPolicy(Qt::NoFocus);
		Entry->Host = new FSlateHost(Entry->Area);
		Entry->Area->setWidget(Entry->Host);
		Entry->Dock->setWidget(Entry->Area);
		AddDock(Entry->Dock);
		Entry->Dock->show();
		// A script has not clicked anywhere, and asks which widget has the focus.
		Entry->bWantsFocus = !Context.IsScript();
		Entries.push_back(std::move(Entry));
	}
}

void FTabDocks::FollowForeground()
{
	const TSharedPtr<SDockTab> Foreground = FGlobalTabmanager::Get()->GetForegroundTab();
	if (Foreground == LastForeground.Pin())
	{
		return;
	}
	LastForeground = Foreground;
	for (const std::unique_ptr<FEntry>& Entry : Entries)
	{
		if (Entry->Tab.Pin() == Foreground && Foreground.IsValid())
		{
			Entry->Dock->show();
			Entry->Dock->raise();
		}
	}
}

QDockWidget* FTabDocks::Find(const QString& TabId) const
{
	for (const std::unique_ptr<FEntry>& Entry : Entries)
	{
		const TSharedPtr<SDockTab> Tab = Entry->Tab.Pin();
		if (Tab.IsValid() && FWindowText::ToQt(Tab->GetLayoutIdentifier().TabType) == TabId)
		{
			return Entry->Dock;
		}
	}
	return nullptr;
}
