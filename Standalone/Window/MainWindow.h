// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <memory>
#include <vector>

#include "TabDocks.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "WindowContext.h"

class FContentBrowser;
class FDetailsView;
class FFileActions;
class FLevelToolBarView;
class FLevelViewport;
class FNotificationStack;
class FPanel;
class ULevel;

/**
 * The editor's window: menus and toolbar, the level in the middle, panels and the modules' tabs around it. For a person
 * it remembers where they stood.
 */
class FMainWindow final : public QMainWindow
{
public:
	explicit FMainWindow(FWindowContext& InContext);
	~FMainWindow() override;

	/** Brings every part up to date with the editor; once a frame. */
	void Poll();

	/** Where the open level came from and "Save" saves it to; empty for nowhere yet. */
	void SetLevelFile(const QString& File);

	/**
	 * Brings a panel or tab to the front for its picture, and everything up to date.
	 * @param Name a panel's title or a tab's id; empty for the whole window.
	 * @return null if there is none of that name.
	 */
	QWidget* PrepareScreenshot(const QString& Name);

	/** The dock of the panel of that title or the tab of that id, or null. */
	QDockWidget* FindDock(const QString& Name) const;

	FLevelViewport& GetViewport() const { return *Viewport; }
	FDetailsView& GetDetails() const { return *Details; }
	FLevelToolBarView& GetToolBar() const { return *ToolBar; }
	FNotificationStack& GetNotifications() const { return *Notifications; }
	FFileActions& GetFiles() const { return *Files; }

protected:
	bool event(QEvent* Event) override;
	void closeEvent(QCloseEvent* Event) override;

private:
	void MakeToolBar();
	void MakePanels();
	void MakeMenus();
	QDockWidget* AddPanel(FPanel* Panel, const QString& Title, Qt::DockWidgetArea Area);
	/** Where everything stands until somebody moves it. */
	void ArrangeDocks();
	void AddTab(QDockWidget* Dock);
	void PlaceTab(QDockWidget* Dock);
	/** The whole of it is on the screen, however small that is. */
	void FitScreen();
	/** Says what has been made or changed since the last poll, unless somebody else has said something. */
	void SayNews();
	QString FindNewActors();
	QString FindNewStep();

	FWindowContext& Context;
	std::unique_ptr<QSettings> Settings;
	std::unique_ptr<FFileActions> Files;
	std::unique_ptr<FTabDocks> Tabs;
	std::vector<FPanel*> Panels;
	/** All of them are children of this window. */
	std::vector<QDockWidget*> Docks;
	FLevelViewport* Viewport = nullptr;
	FDetailsView* Details = nullptr;
	FLevelToolBarView* ToolBar = nullptr;
	FNotificationStack* Notifications = nullptr;
	bool bSaid = false;
	QString LastStep;
	TWeakObjectPtr<ULevel> LastLevel;
	int32 LastNumActors = 0;
};
