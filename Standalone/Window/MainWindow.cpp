// Copyright Corvane. MIT License.
#include "MainWindow.h"

#include "DeveloperMenu.h"
#include "FileActions.h"
#include "FocusSync.h"
#include "Panels/ContentBrowser.h"
#include "Panels/DetailsView.h"
#include "Panels/LevelToolBarView.h"
#include "Panels/LevelViewport.h"
#include "Panels/NotificationStack.h"
#include "Panels/Outliner.h"
#include "Panels/PlaceActors.h"
#include "Panels/SendersPanel.h"
#include "WindowImages.h"

namespace
{
	constexpr int DefaultWidth = 1600;
	constexpr int DefaultHeight = 900;
	/** The wizard's column is 300 units wide, and stands between margins. */
	constexpr int SideWidth = 380;
	constexpr int PlaceWidth = 280;
	constexpr int BrowserHeight = 230;

	const QString PlaceTitle = QStringLiteral("Place Actors");
	const QString OutlinerTitle = QStringLiteral("World Outliner");
	const QString DetailsTitle = QStringLiteral("Details");
	const QString BrowserTitle = QStringLiteral("Content Browser");
	const QString SendersTitle = QStringLiteral("Spout senders");

	/** What is remembered of the window. Another number forgets what an older program remembered. */
	constexpr int LayoutVersion = 1;
	const QString GeometryKey = QStringLiteral("Window/Geometry");
	const QString StateKey = QStringLiteral("Window/State");
}

FMainWindow::FMainWindow(FWindowContext& InContext) : Context(InContext)
{
	if (!Context.IsScript())
	{
		Settings = std::make_unique<QSettings>(
			QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Corvane"), QStringLiteral("QuillonEditor"));
	}
	setWindowTitle(QStringLiteral("Quillon Editor"));
	resize(DefaultWidth, DefaultHeight);
	setDockOptions(QMainWindow::AllowTabbedDocks | QMainWindow::AllowNestedDocks);
	setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
	setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
	Context.Say = [this](const QString& Line) { statusBar()->showMessage(Line); };
	MakeToolBar();
	MakePanels();
	Tabs = std::make_unique<FTabDocks>(Context, [this](QDockWidget* Dock) { AddTab(Dock); });
	MakeMenus();
	Notifications = new FNotificationStack(Context, *this);
	Panels.push_back(Notifications);
	ArrangeDocks();
	if (Settings)
	{
		restoreGeometry(Settings->value(GeometryKey).toByteArray());
		restoreState(Settings->value(StateKey).toByteArray(), LayoutVersion);
	}
	statusBar()->showMessage(QStringLiteral("Ready"));
}

FMainWindow::~FMainWindow()
{
	// What it shows belongs to modules.
	ToolBar->CloseMenu();
	Context.Say = [](const QString&) {};
}

void FMainWindow::MakeToolBar()
{
	ToolBar = new FLevelToolBarView(Context, this);
	Panels.push_back(ToolBar);
	auto* Bar = addToolBar(QStringLiteral("Level Toolbar"));
	Bar->setObjectName(QStringLiteral("LevelToolBar"));
	Bar->setMovable(false);
	Bar->addWidget(ToolBar);
	Bar->toggleViewAction()->setVisible(false);
}

void FMainWindow::MakePanels()
{
	Viewport = new FLevelViewport(Context, this);
	setCentralWidget(Viewport);
	Panels.push_back(Viewport);
	AddPanel(new FPlaceActors(Context, this), PlaceTitle, Qt::LeftDockWidgetArea);
	auto* Outliner = new FOutliner(Context, this);
	Outliner->OnFocusRequested = [this]() { Viewport->FocusSelection(); };
	AddPanel(Outliner, OutlinerTitle, Qt::RightDockWidgetArea);
	Details = new FDetailsView(Context, this);
	AddPanel(Details, DetailsTitle, Qt::RightDockWidgetArea);
	auto* Browser = new FContentBrowser(Context, this);
	QDockWidget* BrowserDock = AddPanel(Browser, BrowserTitle, Qt::BottomDockWidgetArea);
	Browser->OnFrontRequested = [BrowserDock]()
	{
		BrowserDock->show();
		BrowserDock->raise();
	};
	QDockWidget* SendersDock = AddPanel(new FSendersPanel(Context, this), SendersTitle, Qt::BottomDockWidgetArea);
	tabifyDockWidget(BrowserDock, SendersDock);
	BrowserDock->raise();
}

void FMainWindow::MakeMenus()
{
	Files = std::make_unique<FFileActions>(Context, *this, Settings.get());
	Files->OnTitleChanged = [this](const QString& Title)
	{ setWindowTitle(Title + QStringLiteral(" - Quillon Editor")); };
	Files->FillFileMenu(*menuBar()->addMenu(QStringLiteral("&File")));
	Files->FillEditMenu(*menuBar()->addMenu(QStringLiteral("&Edit")));
	QMenu& WindowMenu = *menuBar()->addMenu(QStringLiteral("&Window"));
	for (QDockWidget* Dock : Docks)
	{
		WindowMenu.addAction(Dock->toggleViewAction());
	}
	WindowMenu.addSeparator();
	QAction* Reset = WindowMenu.addAction(QStringLiteral("&Reset Layout"));
	connect(Reset, &QAction::triggered, this, [this]() { ArrangeDocks(); });
	auto* Developer = new FDeveloperMenu(Context, this);
	Developer->setTitle(QStringLiteral("&Developer"));
	menuBar()->addMenu(Developer);
}

QDockWidget* FMainWindow::AddPanel(FPanel* Panel, const QString& Title, Qt::DockWidgetArea Area)
{
	auto* Dock = new QDockWidget(Title, this);
	Dock->setObjectName(Title);
	Dock->setWidget(Panel);
	addDockWidget(Area, Dock);
	Panels.push_back(Panel);
	Docks.push_back(Dock);
	return Dock;
}

void FMainWindow::ArrangeDocks()
{
	for (QDockWidget* Dock : Docks)
	{
		Dock->setFloating(false);
		Dock->show();
	}
	addDockWidget(Qt::LeftDockWidgetArea, FindDock(PlaceTitle));
	addDockWidget(Qt::RightDockWidgetArea, FindDock(OutlinerTitle));
	addDockWidget(Qt::RightDockWidgetArea, FindDock(DetailsTitle));
	addDockWidget(Qt::BottomDockWidgetArea, FindDock(BrowserTitle));
	tabifyDockWidget(FindDock(BrowserTitle), FindDock(SendersTitle));
	FindDock(BrowserTitle)->raise();
	resizeDocks({FindDock(PlaceTitle), FindDock(DetailsTitle)}, {PlaceWidth, SideWidth}, Qt::Horizontal);
	resizeDocks({FindDock(OutlinerTitle), FindDock(DetailsTitle)}, {1, 2}, Qt::Vertical);
	resizeDocks({FindDock(BrowserTitle)}, {BrowserHeight}, Qt::Vertical);
}

void FMainWindow::AddTab(QDockWidget* Dock)
{
	// Where the user had it, else with the details, where its column has room.
	if (!Settings || !restoreDockWidget(Dock))
	{
		addDockWidget(Qt::RightDockWidgetArea, Dock);
		tabifyDockWidget(FindDock(DetailsTitle), Dock);
	}
	Dock->raise();
}

void FMainWindow::Poll()
{
	const FFocusSync::FFromEngine FromEngine;
	Tabs->Poll();
	for (FPanel* Panel : Panels)
	{
		Panel->Poll();
	}
	Files->Poll();
}

void FMainWindow::SetLevelFile(const QString& File)
{
	Files->SetPath(File);
}

QDockWidget* FMainWindow::FindDock(const QString& Name) const
{
	for (QDockWidget* Dock : Docks)
	{
		if (Dock->objectName() == Name)
		{
			return Dock;
		}
	}
	return Tabs ? Tabs->Find(Name) : nullptr;
}

QWidget* FMainWindow::PrepareScreenshot(const QString& Name)
{
	QDockWidget* Dock = FindDock(Name);
	if (Dock)
	{
		Dock->show();
		Dock->raise();
	}
	if (!Dock && !Name.isEmpty())
	{
		return nullptr;
	}
	QCoreApplication::processEvents();
	Details->ShowNow();
	return Dock ? static_cast<QWidget*>(Dock) : this;
}

void FMainWindow::closeEvent(QCloseEvent* Event)
{
	if (Settings)
	{
		Settings->setValue(GeometryKey, saveGeometry());
		Settings->setValue(StateKey, saveState(LayoutVersion));
	}
	QMainWindow::closeEvent(Event);
}
