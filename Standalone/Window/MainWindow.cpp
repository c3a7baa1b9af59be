// Copyright Corvane. MIT License.
#include "MainWindow.h"

#include <utility>

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
#include "WindowText.h"

#include "Editor.h"
#include "EditorViews.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

namespace
{
	constexpr int DefaultWidth = 1600;
	constexpr int DefaultHeight = 900;
	constexpr int SideWidth = 400;
	/** Tabs open there: the wizard's column is 300 units wide, and stands between margins. */
	constexpr int PlaceWidth = 360;
	constexpr int BrowserHeight = 230;

	/** A window has a frame, which is known only once it is shown. */
	const QSize Frame(16, 48);

	constexpr int32 MostActorsNamed = 4;

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
	Context.Say = [this](const QString& Line)
	{
		statusBar()->showMessage(Line);
		bSaid = true;
	};
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
		FitScreen();
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
	for (QDockWidget* Dock : Tabs->GetDocks())
	{
		PlaceTab(Dock);
	}
}

void FMainWindow::FitScreen()
{
	const QRect Room = screen()->availableGeometry();
	resize(size().boundedTo(Room.size() - Frame));
	const QPoint Furthest = Room.bottomRight() - QPoint(width(), height()) + QPoint(1, 1);
	move(
		qBound(Room.left(), x(), Furthest.x() - Frame.width()), qBound(Room.top(), y(), Furthest.y() - Frame.height()));
}

void FMainWindow::AddTab(QDockWidget* Dock)
{
	// Where the user had it.
	if (!Settings || !restoreDockWidget(Dock))
	{
		PlaceTab(Dock);
	}
	Dock->raise();
	Context.Say(QStringLiteral("Opened %1").arg(Dock->windowTitle()));
}

void FMainWindow::PlaceTab(QDockWidget* Dock)
{
	// Not over the details: those of what a tab makes are what one looks for next.
	Dock->setFloating(false);
	addDockWidget(Qt::LeftDockWidgetArea, Dock);
	tabifyDockWidget(FindDock(PlaceTitle), Dock);
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
	SayNews();
}

void FMainWindow::SayNews()
{
	const QString Step = FindNewStep();
	const QString Actors = FindNewActors();
	const QString& News = Actors.isEmpty() ? Step : Actors;
	if (!bSaid && !News.isEmpty())
	{
		Context.Say(News);
	}
	bSaid = false;
}

QString FMainWindow::FindNewStep()
{
	const QString Step =
		GEditor->Trans->CanUndo() ? FWindowText::ToQt(GEditor->Trans->GetUndoContext().Title) : QString();
	return std::exchange(LastStep, Step) == Step ? QString() : Step;
}

QString FMainWindow::FindNewActors()
{
	ULevel* Level = FEditorViews::GetLevelWorld()->PersistentLevel;
	const int32 NumBefore = std::exchange(LastNumActors, Level->Actors.Num());
	if (std::exchange(LastLevel, Level) != Level || LastNumActors <= NumBefore ||
		LastNumActors > NumBefore + MostActorsNamed)
	{
		return QString();
	}
	QStringList Names;
	for (int32 Index = NumBefore; Index < LastNumActors; ++Index)
	{
		const AActor* Actor = Level->Actors[Index];
		Names.push_back(Actor ? FWindowText::ToQt(Actor->GetName()) : QString());
	}
	return QStringLiteral("Created ") + Names.join(QStringLiteral(", "));
}

bool FMainWindow::event(QEvent* Event)
{
	// Menus would clear the line, as their entries have nothing to say.
	return Event->type() == QEvent::StatusTip || QMainWindow::event(Event);
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
	for (FPanel* Panel : Panels)
	{
		Panel->Invalidate();
	}
	Files->Invalidate();
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
