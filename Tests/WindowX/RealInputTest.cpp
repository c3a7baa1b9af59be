// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>

#include "MainWindow.h"
#include "Panels/LevelToolBarView.h"
#include "SlateHost.h"
#include "TemporaryFolder.h"
#include "WindowView.h"

#include "EditorAssets.h"
#include "LevelFile.h"
#include "StandaloneEditor.h"

extern char** environ;

namespace
{
	const QString Wizard = QStringLiteral("CineStreamWizard");
	constexpr int FrameMilliseconds = 16;
	constexpr int LongestWait = 10'000;

	/** The window as a person has it on an X server, and a person's hands: events that come from outside. */
	class FRealInput : public ::testing::Test
	{
	protected:
		FRealInput()
		{
			::setenv("XDG_CONFIG_HOME", Folder.File("config").c_str(), 1);
			std::string Error;
			View = FWindowView::Make(EEditorViewUse::Person, Error);
			if (!View || !Editor.Start(FStandaloneEditorOptions(), Error) ||
				!FLevelFile::Open(QUILLON_SAMPLES_DIR "/studio.json", Error))
			{
				ADD_FAILURE() << Error;
				return;
			}
			View->Attach(Editor);
			GetWindow().move(0, 0);
			EXPECT_TRUE(QTest::qWaitForWindowExposed(&GetWindow()));
		}
		~FRealInput() override
		{
			View->Detach();
			Editor.Shutdown();
			QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
		}

		FMainWindow& GetWindow() { return *View->GetWindow(); }

		void Frame()
		{
			Editor.Tick();
			View->Update();
			QTest::qSleep(FrameMilliseconds);
		}

		/** Runs xdotool while the window goes on. */
		void XDoTool(std::vector<std::string> Words)
		{
			Words.insert(Words.begin(), "xdotool");
			std::vector<char*> Arguments;
			Arguments.reserve(Words.size() + 1);
			for (std::string& Word : Words)
			{
				Arguments.push_back(Word.data());
			}
			Arguments.push_back(nullptr);
			pid_t Process = 0;
			ASSERT_EQ(::posix_spawnp(&Process, "xdotool", nullptr, nullptr, Arguments.data(), environ), 0);
			int Status = 0;
			while (::waitpid(Process, &Status, WNOHANG) == 0)
			{
				Frame();
			}
			EXPECT_EQ(Status, 0);
			Frame();
		}

		void ClickAt(const QWidget& Widget)
		{
			const QPoint Middle = Widget.mapToGlobal(Widget.rect().center());
			XDoTool({"mousemove", std::to_string(Middle.x()), std::to_string(Middle.y()), "click", "1"});
		}

		/** Frames pass until the condition holds. */
		template <typename ConditionType>
		bool WaitFor(ConditionType Condition)
		{
			for (int Waited = 0; Waited < LongestWait && !Condition(); Waited += FrameMilliseconds)
			{
				Frame();
			}
			return Condition();
		}

		/** The first widget of that kind that the wizard shows, or null. */
		template <typename WidgetType>
		WidgetType* FindInWizard(const QString& Text = QString())
		{
			const QDockWidget* Dock = GetWindow().FindDock(Wizard);
			for (WidgetType* Candidate : Dock ? Dock->widget()->findChildren<WidgetType*>() : QList<WidgetType*>())
			{
				const bool bFits = Text.isEmpty() || Candidate->property("text").toString() == Text;
				if (Candidate->isVisible() && bFits)
				{
					return Candidate;
				}
			}
			return nullptr;
		}

		const FTemporaryFolder Folder;
		FStandaloneEditor Editor;
		std::unique_ptr<FWindowView> View;
	};
}

TEST_F(FRealInput, CommitsATakenNameBeforeTheCreateButtonIsHeardAndSeesTheEmptyNamesWarning)
{
	const int NumAssets = FEditorAssets::GetAll().Num();
	ASSERT_TRUE(WaitFor([this]() { return GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane")); }));
	ClickAt(*GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane")));
	ASSERT_TRUE(WaitFor([]() { return QApplication::activePopupWidget() != nullptr; }));
	XDoTool({"type", "--delay", "30", "cine"});
	XDoTool({"key", "Return"});
	ASSERT_TRUE(WaitFor([this]() { return FindInWizard<QLineEdit>() != nullptr; }));
	ClickAt(*FindInWizard<QLineEdit>());
	XDoTool({"type", "--delay", "30", "Stage Left"});
	ASSERT_TRUE(WaitFor([this]() { return FindInWizard<QLineEdit>()->text() == QStringLiteral("Stage Left"); }));
	EXPECT_TRUE(WaitFor(
		[this]() {
			return FindInWizard<QLabel>(QStringLiteral("! Stream Name already defined, please use a differnt name."));
		}));
	ClickAt(*FindInWizard<QPushButton>());
	EXPECT_TRUE(WaitFor([this]() { return FindInWizard<QLabel>(QStringLiteral("! Stream Name cannot be empty.")); }));
	EXPECT_EQ(FEditorAssets::GetAll().Num(), NumAssets) << "nothing was made";
}

TEST_F(FRealInput, MakesASetup)
{
	const int NumAssets = FEditorAssets::GetAll().Num();
	ASSERT_TRUE(WaitFor([this]() { return GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane")); }));
	ClickAt(*GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane")));
	ASSERT_TRUE(WaitFor([]() { return QApplication::activePopupWidget() != nullptr; }));
	XDoTool({"key", "Down", "Return"});
	ASSERT_TRUE(WaitFor([this]() { return FindInWizard<QLineEdit>() != nullptr; }));
	ClickAt(*FindInWizard<QLineEdit>());
	XDoTool({"type", "--delay", "30", "Main"});
	XDoTool({"key", "Tab", "space"});
	EXPECT_TRUE(WaitFor([this]() { return FindInWizard<QLabel>(QStringLiteral("Cinestream 'Main' created!")); }));
	EXPECT_EQ(FEditorAssets::GetAll().Num(), NumAssets + 1);
}
