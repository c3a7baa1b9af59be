// Copyright Corvane. MIT License.
#include "MainWindowFixture.h"

#include <QtTest/QTest>

#include "ActorEdits.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "LevelProperties.h"
#include "SlateHost.h"
#include "WidgetFinder.h"
#include "Widgets/Docking/SDockTab.h"

FMainWindowFixture::FMainWindowFixture(EEditorViewUse Use)
{
	QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Corvane"), QStringLiteral("QuillonEditor"))
		.clear();
	std::string Error;
	View = FWindowView::Make(Use, Error);
	if (!View || !Editor.Start(FStandaloneEditorOptions(), Error))
	{
		ADD_FAILURE() << Error;
		return;
	}
	FSlateApplication::Get().SetCurrentTime(Time);
	View->Attach(Editor);
	GetWindow().activateWindow();
	Frame();
}

FMainWindowFixture::~FMainWindowFixture()
{
	View->Detach();
	Editor.Shutdown();
	QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void FMainWindowFixture::Frame()
{
	Editor.Tick();
	View->Update();
}

void FMainWindowFixture::Advance(double Seconds)
{
	Time += Seconds;
	FSlateApplication::Get().SetCurrentTime(Time);
	Frame();
}

void FMainWindowFixture::OpenWizard()
{
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId("CineStreamWizard"));
	Frame();
	Frame();
}

FSlateHost& FMainWindowFixture::GetTabHost(const char* TabId)
{
	QDockWidget* Dock = GetWindow().FindDock(QString::fromLatin1(TabId));
	EXPECT_NE(Dock, nullptr);
	return *static_cast<FSlateHost*>(static_cast<QScrollArea*>(Dock->widget())->widget());
}

QWidget& FMainWindowFixture::FindInTab(const char* TabId, const TCHAR* Type)
{
	FSlateHost& Host = GetTabHost(TabId);
	for (const FWidgetFinder::FShown& Shown : FWidgetFinder(Host.GetRoot().ToSharedRef()).GetShown())
	{
		if (Shown.Widget->GetTypeAsString().Equals(Type))
		{
			return *Host.FindLeaf(*Shown.Widget);
		}
	}
	ADD_FAILURE() << "the tab shows no " << TCHAR_TO_UTF8(Type);
	return Host;
}

QWidget& FMainWindowFixture::FindText(const char* TabId, const QString& Text)
{
	for (QLabel* Label : GetTabHost(TabId).findChildren<QLabel*>())
	{
		if (Label->isVisible() && Label->text() == Text)
		{
			return *Label;
		}
	}
	ADD_FAILURE() << "the tab shows no text " << Text.toStdString();
	return GetTabHost(TabId);
}

void FMainWindowFixture::Click(QWidget& Widget)
{
	QTest::mouseClick(&Widget, Qt::LeftButton);
	Frame();
}

void FMainWindowFixture::Type(const QString& Text)
{
	QTest::keyClicks(QApplication::focusWidget(), Text);
	Frame();
}

void FMainWindowFixture::Press(int Key, Qt::KeyboardModifiers Modifiers)
{
	QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(Key), Modifiers);
	Frame();
}

void FMainWindowFixture::Place(const TCHAR* ClassName)
{
	ASSERT_NE(FActorEdits::Place(FLevelProperties::FindActorClass(ClassName), FVector(), FRotator()), nullptr);
	Frame();
}
