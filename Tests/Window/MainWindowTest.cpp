// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QProcess>
#include <QtTest/QTest>

#include "MainWindowFixture.h"
#include "Panels/LevelToolBarView.h"
#include "SlateHost.h"

#include "EditorAssets.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Internationalization/TextLocalizationManager.h"
#include "Modules/ModuleManager.h"
#include "TemporaryFolder.h"
#include "Widgets/Docking/SDockTab.h"
#include "ZAVSpoutNames.h"

namespace
{
	const char* const Wizard = "CineStreamWizard";
	const QString CreateCaption = QStringLiteral("Create Instant Cinestream Output");

	class FMainWindowView : public FMainWindowFixture
	{
	protected:
		/** Presses the tab key until the control of that name has the focus. */
		void TabTo(const QString& Name)
		{
			constexpr int MostStops = 60;
			for (int Stop = 0; Stop < MostStops; ++Stop)
			{
				if (QApplication::focusWidget() && QApplication::focusWidget()->accessibleName() == Name)
				{
					return;
				}
				Press(Qt::Key_Tab);
			}
			FAIL() << "the tab key does not reach " << Name.toStdString();
		}
	};

	/** The names of all widgets that can have the focus and are seen; "CLASS!" for one without name or role. */
	QStringList FindNames(QWidget& Window)
	{
		QStringList Names;
		for (QWidget* Widget : Window.findChildren<QWidget*>())
		{
			const bool bCounts = Widget->isVisible() && Widget->focusPolicy() != Qt::NoFocus && !Widget->focusProxy();
			if (!bCounts)
			{
				continue;
			}
			const QAccessibleInterface* Interface = QAccessible::queryAccessibleInterface(Widget);
			const bool bHasRole = Interface && Interface->role() != QAccessible::NoRole;
			const QString Name = bHasRole ? Interface->text(QAccessible::Name) : QString();
			Names.push_back(Name.isEmpty() ? QString::fromLatin1(Widget->metaObject()->className()) + u'!' : Name);
		}
		return Names;
	}
}

TEST_F(FMainWindowView, GivesEveryControlANameAndARole)
{
	OpenWizard();
	Place(TEXT("ZAVSpoutReceiverManager"));
	const QStringList Names = FindNames(GetWindow());
	EXPECT_GT(Names.size(), 15);
	for (const QString& Name : Names)
	{
		EXPECT_FALSE(Name.endsWith(u'!')) << Name.toStdString();
	}
}

TEST_F(FMainWindowView, MakesASetupWithTheKeyboardAlone)
{
	TabTo(QStringLiteral("Corvane"));
	Press(Qt::Key_Return);
	ASSERT_NE(GetWindow().GetToolBar().GetMenu(), nullptr);
	QTest::keyClicks(GetWindow().GetToolBar().GetMenu(), QStringLiteral("cine"));
	Frame();
	QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
	Frame();
	Frame();
	ASSERT_NE(GetWindow().FindDock(QString::fromLatin1(Wizard)), nullptr);
	TabTo(QStringLiteral("Cinestream Name:"));
	Type(QStringLiteral("Main"));
	Press(Qt::Key_Tab);
	Press(Qt::Key_Space);
	Frame();
	FindText(Wizard, QStringLiteral("Cinestream 'Main' created!"));
	EXPECT_EQ(FEditorAssets::GetAll().Num(), 1);
}

TEST_F(FMainWindowView, CommitsATakenNameBeforeTheCreateButtonIsHeard)
{
	OpenWizard();
	Click(FindInTab(Wizard, TEXT("SEditableTextBox")));
	Type(QStringLiteral("Main"));
	Click(FindInTab(Wizard, TEXT("SButton")));
	Click(FindInTab(Wizard, TEXT("SButton")));
	Click(FindInTab(Wizard, TEXT("SEditableTextBox")));
	// The box still holds the name that is taken by now.
	Press(Qt::Key_End);
	Press(Qt::Key_Backspace);
	Type(QStringLiteral("n"));
	FindText(Wizard, QStringLiteral("! Stream Name already defined, please use a differnt name."));
	Click(FindInTab(Wizard, TEXT("SButton")));
	FindText(Wizard, QStringLiteral("! Stream Name cannot be empty."));
	EXPECT_EQ(FEditorAssets::GetAll().Num(), 1);
}

TEST_F(FMainWindowView, ShowsTheWizardsColumnExactly300Wide)
{
	OpenWizard();
	EXPECT_EQ(FindInTab(Wizard, TEXT("SEditableTextBox")).width(), 300);
	EXPECT_EQ(FindInTab(Wizard, TEXT("SButton")).width(), 300);
	const QRect Box = FindInTab(Wizard, TEXT("SEditableTextBox")).geometry();
	const int Free = GetTabHost(Wizard).width() - 300;
	EXPECT_NEAR(Box.left(), Free / 2.0, 1.0) << "in the middle";
	GetWindow().FindDock(QString::fromLatin1(Wizard))->setFloating(true);
	GetWindow().FindDock(QString::fromLatin1(Wizard))->resize(700, 800);
	Frame();
	Frame();
	EXPECT_EQ(FindInTab(Wizard, TEXT("SEditableTextBox")).width(), 300);
}

TEST_F(FMainWindowView, KeepsTheWizardsColumnWithTheLongerTextsOfATranslation)
{
	OpenWizard();
	const int Before = FindInTab(Wizard, TEXT("SEditableTextBox")).y();
	FTextLocalizationManager::Get().SetTable([](const FString&, const FString&, const FString& Source)
		{ return TOptional<FString>(Source + FString(TEXT(" – und noch mehr Text, der umbrochen wird"))); });
	Frame();
	const QRect Box = FindInTab(Wizard, TEXT("SEditableTextBox")).geometry();
	EXPECT_EQ(Box.width(), 300);
	EXPECT_GT(Box.y(), Before) << "the header needs more lines";
	for (const QLabel* Label : GetTabHost(Wizard).findChildren<QLabel*>())
	{
		// Only a caption that does not wrap may be wider.
		EXPECT_TRUE(!Label->isVisible() || Label->width() <= 300 || Label->height() < 24)
			<< Label->text().toStdString();
	}
	FTextLocalizationManager::Get().SetTable(nullptr);
}

TEST_F(FMainWindowView, KeepsThePlaceOfTheWarningThatIsNotShown)
{
	OpenWizard();
	const int Before = FindInTab(Wizard, TEXT("SButton")).y();
	Click(FindInTab(Wizard, TEXT("SEditableTextBox")));
	Type(QStringLiteral("a"));
	Press(Qt::Key_Backspace);
	FindText(Wizard, QStringLiteral("! Stream Name cannot be empty."));
	EXPECT_EQ(FindInTab(Wizard, TEXT("SButton")).y(), Before);
}

TEST_F(FMainWindowView, ScrollsATabThatIsHigherThanItsDock)
{
	OpenWizard();
	QDockWidget& Dock = *GetWindow().FindDock(QString::fromLatin1(Wizard));
	Dock.setFloating(true);
	Dock.resize(400, 300);
	Frame();
	Frame();
	const QScrollArea& Area = static_cast<QScrollArea&>(*Dock.widget());
	EXPECT_GT(Area.verticalScrollBar()->maximum(), 0);
	EXPECT_EQ(FindInTab(Wizard, TEXT("SEditableTextBox")).width(), 300);
}

TEST_F(FMainWindowView, ClosesTheTabWithItsDock)
{
	OpenWizard();
	const TWeakPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(Wizard));
	ASSERT_TRUE(Tab.IsValid());
	GetWindow().FindDock(QString::fromLatin1(Wizard))->close();
	Frame();
	EXPECT_FALSE(Tab.IsValid()) << "nothing keeps it";
	EXPECT_EQ(GetWindow().FindDock(QString::fromLatin1(Wizard)), nullptr);
	OpenWizard();
	EXPECT_NE(GetWindow().FindDock(QString::fromLatin1(Wizard)), nullptr);
}

TEST_F(FMainWindowView, ClosesTheDockWithItsTab)
{
	OpenWizard();
	FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(Wizard))->RequestCloseTab();
	Frame();
	EXPECT_EQ(GetWindow().FindDock(QString::fromLatin1(Wizard)), nullptr);
}

TEST_F(FMainWindowView, SurvivesTheModulesLeavingWhileAllIsShown)
{
	OpenWizard();
	Place(TEXT("ZAVCineCamCapture"));
	Editor.ClosePanels();
	FModuleManager::Get().UnloadModule("QuillonEditor");
	Frame();
	EXPECT_EQ(GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane")), nullptr);
	FModuleManager::Get().LoadModuleChecked("QuillonEditor");
	Frame();
	EXPECT_NE(GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane")), nullptr);
	OpenWizard();
	FindText(Wizard, CreateCaption);
}

TEST_F(FMainWindowView, RefusesAPictureOfWhatIsNotThere)
{
	std::string Error;
	EXPECT_FALSE(View->SaveScreenshot("/dev/null/a.png", "NoSuchTab", Error));
	EXPECT_EQ(Error, "the window has no panel or open tab \"NoSuchTab\"");
	EXPECT_FALSE(View->SaveScreenshot("/no/such/folder/a.png", "", Error));
	EXPECT_NE(Error.find("/no/such/folder/a.png"), std::string::npos);
}

namespace
{
	/** A person's window, which remembers where things stood, in settings of its own. */
	class FRememberingWindow : public FMainWindowFixture
	{
	protected:
		FRememberingWindow() : FMainWindowFixture(EEditorViewUse::Person) {}

		/** As if the program were started again. */
		void Reopen()
		{
			GetWindow().close();
			View->Detach();
			View->Attach(Editor);
			Frame();
		}
		Qt::DockWidgetArea GetArea(const char* Name)
		{
			return GetWindow().dockWidgetArea(GetWindow().FindDock(QString::fromLatin1(Name)));
		}
	};
}

TEST_F(FRememberingWindow, FindsPanelsAndTabsWhereTheyWereLeft)
{
	OpenWizard();
	EXPECT_EQ(GetArea(Wizard), Qt::LeftDockWidgetArea);
	GetWindow().addDockWidget(Qt::RightDockWidgetArea, GetWindow().FindDock(QString::fromLatin1(Wizard)));
	GetWindow().addDockWidget(Qt::LeftDockWidgetArea, GetWindow().FindDock(QStringLiteral("World Outliner")));
	GetWindow().FindDock(QStringLiteral("Spout senders"))->hide();
	Reopen();
	EXPECT_EQ(GetArea("World Outliner"), Qt::LeftDockWidgetArea);
	EXPECT_EQ(GetArea(Wizard), Qt::RightDockWidgetArea) << "it was open, and is again";
	EXPECT_TRUE(GetWindow().FindDock(QStringLiteral("Spout senders"))->isHidden());
}

namespace
{
	/** How many neighbours in a row differ as much as sharp letters do from what is behind them. */
	int CountSharpEdges(const QImage& Image)
	{
		constexpr int SharpStep = 105;
		int Count = 0;
		for (int Y = 0; Y < Image.height(); ++Y)
		{
			for (int X = 1; X < Image.width(); ++X)
			{
				Count += std::abs(qGray(Image.pixel(X, Y)) - qGray(Image.pixel(X - 1, Y))) > SharpStep ? 1 : 0;
			}
		}
		return Count;
	}

	/** The window on a screen of another scale, which takes a process of its own. */
	QImage TakeScaled(const QByteArray& Scale)
	{
		const FTemporaryFolder Folder;
		const std::string Picture = Folder.File("a.png");
		const std::string Recording = Folder.Write("a.jsonl",
			"{\"do\":\"choose\",\"button\":\"Corvane\",\"entry\":\"Cine Stream Wizard\"}\n{\"do\":\"screenshot\",\"file\":\"" +
				Picture + "\",\"tab\":\"\"}\n");
		QProcess Process;
		QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
		Environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(Scale));
		Process.setProcessEnvironment(Environment);
		Process.start(QStringLiteral(QUILLON_EDITOR_PROGRAM),
			{QStringLiteral("drive"), QString::fromStdString(Recording), QStringLiteral("--view"),
				QStringLiteral("qt")});
		EXPECT_TRUE(Process.waitForFinished());
		return QImage(QString::fromStdString(Picture));
	}
}

TEST(FScaledWindow, IsSharpAtEachScale)
{
	const QImage Plain = TakeScaled("1");
	ASSERT_EQ(Plain.size(), QSize(1600, 900));
	const int Edges = CountSharpEdges(Plain);
	for (const double Scale : {1.5, 2.0})
	{
		const QImage Scaled = TakeScaled(QByteArray::number(Scale));
		ASSERT_EQ(Scaled.size(), Plain.size() * Scale);
		// An image that is enlarged afterwards has softer edges than before, not as many more as there are rows.
		EXPECT_GT(CountSharpEdges(Scaled), Edges * Scale * 0.9) << Scale;
		const QImage Enlarged = Plain.scaled(Scaled.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
		EXPECT_LT(CountSharpEdges(Enlarged), CountSharpEdges(Scaled) / 2) << "what blur would look like";
	}
}

TEST_F(FRememberingWindow, PutsAllInItsFirstPlaceAgain)
{
	OpenWizard();
	GetWindow().addDockWidget(Qt::LeftDockWidgetArea, GetWindow().FindDock(QStringLiteral("World Outliner")));
	GetWindow().FindDock(QString::fromLatin1(Wizard))->setFloating(true);
	for (QAction* Action : GetWindow().menuBar()->findChildren<QAction*>())
	{
		if (Action->text() == QStringLiteral("&Reset Layout"))
		{
			Action->trigger();
		}
	}
	Frame();
	EXPECT_EQ(GetArea("World Outliner"), Qt::RightDockWidgetArea);
	EXPECT_FALSE(GetWindow().FindDock(QString::fromLatin1(Wizard))->isFloating());
}

TEST_F(FRememberingWindow, LetsOneTypeIntoATabThatWasJustOpened)
{
	OpenWizard();
	Type(QStringLiteral("Main"));
	EXPECT_EQ(static_cast<QLineEdit&>(FindInTab(Wizard, TEXT("SEditableTextBox"))).text(), QStringLiteral("Main"));
}

TEST_F(FRememberingWindow, SaysWhatHasBeenDone)
{
	const auto Said = [this]() { return GetWindow().statusBar()->currentMessage(); };
	OpenWizard();
	EXPECT_EQ(Said(), QStringLiteral("Opened Cine Stream Wizard"));
	Type(QStringLiteral("Main"));
	Click(FindInTab(Wizard, TEXT("SButton")));
	EXPECT_EQ(Said(), QStringLiteral("Created ZAVCineCamCapture_0, ZAVSpoutSenderManager_0"));
	Place(TEXT("ZAVSpoutSenderManager"));
	EXPECT_EQ(Said(), QStringLiteral("Created ZAVSpoutSenderManager_1"));
	QStatusTipEvent FromAMenu{QString()};
	QApplication::sendEvent(&GetWindow(), &FromAMenu);
	EXPECT_EQ(Said(), QStringLiteral("Created ZAVSpoutSenderManager_1")) << "a menu that opens has nothing to say";
}

TEST_F(FRememberingWindow, FitsOnItsScreen)
{
	GetWindow().resize(5000, 4000);
	GetWindow().move(-300, 2000);
	Reopen();
	const QRect Geometry = GetWindow().geometry();
	EXPECT_TRUE(GetWindow().screen()->availableGeometry().contains(GetWindow().frameGeometry()))
		<< Geometry.x() << ' ' << Geometry.y() << ' ' << Geometry.width() << ' ' << Geometry.height();
}

TEST_F(FRememberingWindow, ShowsWhichControlHasTheFocus)
{
	OpenWizard();
	Place(TEXT("ZAVSpoutReceiverManager"));
	GetWindow().FindDock(QStringLiteral("Place Actors"))->raise();
	Advance(1.0);
	for (QWidget* Widget : GetWindow().findChildren<QWidget*>())
	{
		const bool bStop = Widget->isVisible() && Widget->isEnabled() && (Widget->focusPolicy() & Qt::TabFocus) != 0 &&
			!Widget->focusProxy() && !Widget->visibleRegion().isEmpty();
		if (!bStop)
		{
			continue;
		}
		GetWindow().setFocus();
		Widget->clearFocus();
		QCoreApplication::processEvents();
		const QImage Without = GetWindow().grab().toImage();
		Widget->setFocus(Qt::TabFocusReason);
		QCoreApplication::processEvents();
		EXPECT_NE(GetWindow().grab().toImage(), Without)
			<< Widget->metaObject()->className() << " " << Widget->accessibleName().toStdString();
	}
}

TEST_F(FMainWindowView, ShowsInAPictureWhatHasJustChanged)
{
	const FTemporaryFolder Folder;
	std::string Error;
	QDockWidget& Senders = *GetWindow().FindDock(QStringLiteral("Spout senders"));
	ASSERT_TRUE(View->SaveScreenshot(Folder.File("a.png"), "Spout senders", Error)) << Error;
	ZAVSpoutNames::SetActiveSenderNames({TEXT("A"), TEXT("B")});
	Place(TEXT("ZAVSpoutSenderManager"));
	ASSERT_TRUE(View->SaveScreenshot(Folder.File("a.png"), "Spout senders", Error)) << Error;
	ZAVSpoutNames::SetActiveSenderNames({});
	EXPECT_EQ(Senders.findChild<QListWidget*>()->count(), 2);
	EXPECT_TRUE(GetWindow().windowTitle().contains(u'*')) << GetWindow().windowTitle().toStdString();
}

TEST_F(FMainWindowView, LeavesWhatAPanelHasSaid)
{
	QListWidget* Classes = nullptr;
	for (QListWidget* List : GetWindow().FindDock(QStringLiteral("Place Actors"))->findChildren<QListWidget*>())
	{
		Classes = List->accessibleName() == QStringLiteral("Classes") ? List : Classes;
	}
	ASSERT_NE(Classes, nullptr);
	Classes->setFocus();
	Classes->setCurrentRow(0);
	Press(Qt::Key_Return);
	EXPECT_EQ(GetWindow().statusBar()->currentMessage(), QStringLiteral("Placed Actor_0"));
}
