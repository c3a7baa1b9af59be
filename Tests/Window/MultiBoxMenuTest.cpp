// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include "EditorMenus.h"
#include "Framework/Commands/Commands.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Panels/MultiBoxMenu.h"
#include "WindowFixture.h"

namespace
{
	class FTestCommands : public TCommands<FTestCommands>
	{
	public:
		FTestCommands() : TCommands("WindowMenuTest", FText(), NAME_None, "TestStyle") {}
		void RegisterCommands() override
		{
			Make(Alpha, "Alpha", TEXT("Alpha"));
			Make(Beta, "Beta", TEXT("Beta & Sons"));
			Make(Gamma, "Gamma", TEXT("Gamma <b>"));
			Make(Toggle, "Toggle", TEXT("Toggle it"), EUserInterfaceActionType::ToggleButton);
			Make(Idle, "Idle", TEXT("Idle"));
		}

		TSharedPtr<FUICommandInfo> Alpha;
		TSharedPtr<FUICommandInfo> Beta;
		TSharedPtr<FUICommandInfo> Gamma;
		TSharedPtr<FUICommandInfo> Toggle;
		TSharedPtr<FUICommandInfo> Idle;

	private:
		void Make(TSharedPtr<FUICommandInfo>& OutCommand, const FName Name, const TCHAR* Label,
			EUserInterfaceActionType Type = EUserInterfaceActionType::Button)
		{
			FUICommandInfo::MakeCommandInfo(AsShared(), OutCommand, Name, FText::FromString(Label),
				FText::FromString(TEXT("Tip <1>")), FSlateIcon(), Type, FInputChord());
		}
	};

	class FMultiBoxMenuTest : public FWindowFixture
	{
	protected:
		FMultiBoxMenuTest() : Commands(MakeShared<FUICommandList>())
		{
			FTestCommands::Register();
			const FTestCommands& Made = FTestCommands::Get();
			Commands->MapAction(Made.Alpha, FExecuteAction::CreateLambda([this] { Note("alpha"); }));
			Commands->MapAction(Made.Beta, FExecuteAction::CreateLambda([this] { Note("beta"); }));
			Commands->MapAction(Made.Gamma, FExecuteAction::CreateLambda([this] { Note("gamma"); }),
				FCanExecuteAction::CreateLambda([this] { return bGammaCan; }));
			Commands->MapAction(Made.Toggle, FExecuteAction::CreateLambda([this] { bOn = !bOn; }), FCanExecuteAction(),
				FIsActionChecked::CreateLambda([this] { return bOn; }));
			Commands->MapAction(Made.Idle, FExecuteAction());
		}
		~FMultiBoxMenuTest() override
		{
			delete Menu;
			FTestCommands::Unregister();
		}

		/** What the menu looked like when an entry was carried out. */
		void Note(const char* What)
		{
			Done += What;
			bWasOpen = Menu && Menu->isVisible();
		}
		TSharedRef<const FMultiBox> Make(bool bCloses = true, bool bSearchable = true, uint32 MaxHeight = 1000)
		{
			const FTestCommands& Made = FTestCommands::Get();
			FMenuBuilder Builder(bCloses, Commands, nullptr, false, &FCoreStyle::Get(), bSearchable);
			Builder.AddMenuEntry(Made.Alpha);
			Builder.BeginSection("Second", FText::FromString(TEXT("Second & last")));
			Builder.AddMenuEntry(Made.Beta);
			Builder.AddMenuEntry(Made.Gamma);
			Builder.AddMenuEntry(Made.Toggle);
			Builder.EndSection();
			Builder.BeginSection(NAME_None);
			Builder.AddMenuEntry(Made.Idle);
			Builder.EndSection();
			return StaticCastSharedRef<SMultiBoxWidget>(Builder.MakeWidget(nullptr, MaxHeight))->GetMultiBox();
		}
		void Open(const TSharedRef<const FMultiBox>& Box)
		{
			Menu = new FMultiBoxMenu(Box, nullptr);
			Menu->OnRefused = [this](const QString& Line) { LastSaid = Line; };
			Menu->OpenAt(QPoint(20, 20));
			QCoreApplication::processEvents();
		}
		QStringList GetShown()
		{
			QStringList Shown;
			for (const QAction* Action : Menu->actions())
			{
				if (Action->isVisible() && !Action->isSeparator())
				{
					Shown += Action->text();
				}
			}
			return Shown;
		}
		QAction* FindAction(const char* Text)
		{
			for (QAction* Action : Menu->actions())
			{
				if (Action->text() == QString::fromLatin1(Text))
				{
					return Action;
				}
			}
			ADD_FAILURE() << Text;
			return nullptr;
		}
		void ClickOn(const char* Text)
		{
			QTest::mouseClick(Menu, Qt::LeftButton, Qt::NoModifier, Menu->actionGeometry(FindAction(Text)).center());
		}
		QLineEdit& GetSearch() { return *Menu->findChild<QLineEdit*>(); }
		void Settle()
		{
			QCoreApplication::processEvents();
			QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
		}

		TSharedRef<FUICommandList> Commands;
		QPointer<FMultiBoxMenu> Menu;
		std::string Done;
		bool bWasOpen = false;
		bool bGammaCan = true;
		bool bOn = true;
	};
}

TEST_F(FMultiBoxMenuTest, ShowsEntriesUnderTheirHeadings)
{
	bGammaCan = false;
	Open(Make());
	EXPECT_EQ(GetShown(),
		QStringList({QStringLiteral("Alpha"), QStringLiteral("Beta && Sons"), QStringLiteral("Gamma <b>"),
			QStringLiteral("Toggle it"), QStringLiteral("Idle")}));
	QStringList Headings;
	for (const QAction* Action : Menu->actions())
	{
		if (Action->isSeparator())
		{
			Headings += Action->text();
		}
	}
	EXPECT_EQ(Headings, QStringList({QString(), QStringLiteral("Second & last"), QString()}));
	EXPECT_FALSE(FindAction("Gamma <b>")->isEnabled());
	EXPECT_TRUE(FindAction("Toggle it")->isCheckable());
	EXPECT_TRUE(FindAction("Toggle it")->isChecked());
	EXPECT_FALSE(FindAction("Alpha")->isCheckable());
	EXPECT_TRUE(Menu->toolTipsVisible());
	EXPECT_EQ(FindAction("Alpha")->toolTip(), QStringLiteral("<qt>Tip &lt;1&gt;</qt>"));
	Grab(*Menu, "menu");
}

TEST_F(FMultiBoxMenuTest, ShowsThePluginsMenu)
{
	std::string Error;
	Open(FEditorMenus::Open(TEXT("Corvane"), Error).ToSharedRef());
	EXPECT_EQ(GetShown().size(), 8);
	EXPECT_FALSE(FindAction("Cine Stream Wizard")->icon().isNull());
	Grab(*Menu, "menu-plugin");
	QTest::keyClicks(Menu, QStringLiteral("co"));
	Grab(*Menu, "menu-plugin-search");
}

TEST_F(FMultiBoxMenuTest, CarriesOutAChoiceAfterItHasClosed)
{
	Open(Make());
	ClickOn("Beta && Sons");
	EXPECT_EQ(Done, "beta");
	EXPECT_FALSE(bWasOpen);
	EXPECT_FALSE(Menu && Menu->isVisible());
	Settle();
	EXPECT_TRUE(Menu.isNull()) << "it is made for one opening";
}

TEST_F(FMultiBoxMenuTest, ChoosesByTheKeyboard)
{
	Open(Make());
	QTest::keyClick(Menu, Qt::Key_Down);
	QTest::keyClick(Menu, Qt::Key_Down);
	QTest::keyClick(Menu, Qt::Key_Return);
	EXPECT_EQ(Done, "beta");
	EXPECT_FALSE(bWasOpen);
}

TEST_F(FMultiBoxMenuTest, DoesNotChooseADisabledEntry)
{
	bGammaCan = false;
	Open(Make());
	ClickOn("Gamma <b>");
	EXPECT_EQ(Done, "");
	EXPECT_TRUE(Menu->isVisible());
}

TEST_F(FMultiBoxMenuTest, SaysWhatDoesNothing)
{
	Open(Make());
	ClickOn("Idle");
	EXPECT_EQ(LastSaid, QStringLiteral("\"Idle\" does nothing"));
}

TEST_F(FMultiBoxMenuTest, StaysOpenAndUpToDateIfItIsToldTo)
{
	Open(Make(false));
	ClickOn("Toggle it");
	EXPECT_FALSE(bOn);
	EXPECT_TRUE(Menu->isVisible());
	EXPECT_FALSE(FindAction("Toggle it")->isChecked());
	bGammaCan = false;
	ClickOn("Alpha");
	EXPECT_EQ(Done, "alpha");
	EXPECT_TRUE(bWasOpen);
	EXPECT_FALSE(FindAction("Gamma <b>")->isEnabled());
	ClickOn("Gamma <b>");
	EXPECT_EQ(Done, "alpha");
	Menu->setActiveAction(FindAction("Beta && Sons"));
	QTest::keyClick(Menu, Qt::Key_Return);
	EXPECT_EQ(Done, "alphabeta");
	EXPECT_TRUE(Menu->isVisible());
	QTest::keyClick(Menu, Qt::Key_Escape);
	EXPECT_FALSE(Menu->isVisible());
}

TEST_F(FMultiBoxMenuTest, FiltersWhileSomebodyTypes)
{
	Open(Make());
	EXPECT_FALSE(GetSearch().isVisible());
	QTest::keyClicks(Menu, QStringLiteral("A"));
	EXPECT_TRUE(GetSearch().isVisible());
	EXPECT_EQ(GetSearch().text(), QStringLiteral("A"));
	EXPECT_TRUE(GetSearch().hasFocus());
	QTest::keyClicks(&GetSearch(), QStringLiteral("mM"));
	EXPECT_EQ(GetSearch().text(), QStringLiteral("AmM"));
	EXPECT_EQ(GetShown(), QStringList({QString(), QStringLiteral("Gamma <b>")})) << "the field, and what matches";
	for (const QAction* Action : Menu->actions())
	{
		EXPECT_TRUE(!Action->isSeparator() || Action->isVisible() == !Action->text().isEmpty())
			<< "only the heading of what matches";
	}
	EXPECT_EQ(Menu->activeAction(), FindAction("Gamma <b>"));
	QTest::keyClick(&GetSearch(), Qt::Key_Return);
	EXPECT_EQ(Done, "gamma");
	EXPECT_FALSE(bWasOpen);
}

TEST_F(FMultiBoxMenuTest, ChoosesTheFirstMatchThatCanBeChosen)
{
	bGammaCan = false;
	Open(Make());
	QTest::keyClicks(Menu, QStringLiteral("g"));
	EXPECT_EQ(GetShown(), QStringList({QString(), QStringLiteral("Gamma <b>"), QStringLiteral("Toggle it")}));
	QTest::keyClick(&GetSearch(), Qt::Key_Return);
	EXPECT_EQ(Done, "");
	EXPECT_FALSE(bOn);
}

TEST_F(FMultiBoxMenuTest, MovesAmongTheMatchesByTheArrows)
{
	Open(Make());
	QTest::keyClicks(Menu, QStringLiteral("a"));
	EXPECT_EQ(Menu->activeAction(), FindAction("Alpha"));
	QTest::keyClick(&GetSearch(), Qt::Key_Down);
	EXPECT_EQ(Menu->activeAction(), FindAction("Beta && Sons"));
	QTest::keyClicks(&GetSearch(), QStringLiteral("m"));
	EXPECT_EQ(Menu->activeAction(), FindAction("Gamma <b>"));
}

TEST_F(FMultiBoxMenuTest, FindsWhatHasAnAmpersand)
{
	Open(Make());
	QTest::keyClicks(Menu, QStringLiteral("& s"));
	EXPECT_EQ(GetShown(), QStringList({QString(), QStringLiteral("Beta && Sons")}));
	QTest::keyClick(&GetSearch(), Qt::Key_Backspace);
	QTest::keyClick(Menu, Qt::Key_Backspace);
	EXPECT_EQ(GetSearch().text(), QStringLiteral("&"));
}

TEST_F(FMultiBoxMenuTest, SaysThatNothingMatchesAndChoosesNothing)
{
	Open(Make());
	QTest::keyClicks(Menu, QStringLiteral("zzz"));
	EXPECT_EQ(GetShown(), QStringList({QString(), QStringLiteral("No matching entries")}));
	QTest::keyClick(&GetSearch(), Qt::Key_Return);
	EXPECT_EQ(Done, "");
	EXPECT_EQ(LastSaid, QString());
}

TEST_F(FMultiBoxMenuTest, ClearsTheSearchByEscapeBeforeItCloses)
{
	Open(Make());
	QTest::keyClicks(Menu, QStringLiteral("ga"));
	QTest::keyClick(&GetSearch(), Qt::Key_Escape);
	EXPECT_TRUE(Menu->isVisible());
	EXPECT_FALSE(GetSearch().isVisible());
	EXPECT_EQ(GetShown().size(), 5);
	QTest::keyClick(Menu, Qt::Key_Escape);
	EXPECT_FALSE(Menu->isVisible());
	EXPECT_EQ(Done, "");
}

TEST_F(FMultiBoxMenuTest, IsNotSearchedIfItCannotBe)
{
	Open(Make(true, false));
	QTest::keyClicks(Menu, QStringLiteral("zzz"));
	EXPECT_EQ(GetShown().size(), 5);
	EXPECT_EQ(Menu->findChild<QLineEdit*>(), nullptr);
}

TEST_F(FMultiBoxMenuTest, ScrollsWhatIsHigherThanItMayBe)
{
	Open(Make(true, true, 70));
	EXPECT_EQ(Menu->height(), 70);
	for (const char* Entry : {"Alpha", "Beta && Sons", "Gamma <b>", "Toggle it", "Idle", "Alpha"})
	{
		QTest::keyClick(Menu, Qt::Key_Down);
		ASSERT_EQ(Menu->activeAction(), FindAction(Entry));
		EXPECT_TRUE(Menu->rect().contains(Menu->actionGeometry(Menu->activeAction()))) << Entry;
		EXPECT_EQ(Menu->pos(), QPoint(20, 20));
	}
}

TEST_F(FMultiBoxMenuTest, ShowsWhatMatchesThoughItWasScrolled)
{
	Open(Make(true, true, 70));
	QTest::keyClick(Menu, Qt::Key_End);
	QTest::keyClicks(Menu, QStringLiteral("alp"));
	QCoreApplication::processEvents();
	EXPECT_TRUE(Menu->rect().contains(Menu->actionGeometry(FindAction("Alpha"))));
	EXPECT_EQ(Menu->pos(), QPoint(20, 20));
	EXPECT_LE(Menu->height(), 70);
	QTest::keyClick(&GetSearch(), Qt::Key_Escape);
	QTest::keyClick(Menu, Qt::Key_End);
	QTest::keyClicks(Menu, QStringLiteral("zz"));
	QCoreApplication::processEvents();
	EXPECT_TRUE(Menu->rect().contains(Menu->actionGeometry(FindAction("No matching entries"))));
	QTest::keyClick(&GetSearch(), Qt::Key_Escape);
	EXPECT_EQ(Menu->height(), 70);
	EXPECT_EQ(Menu->pos(), QPoint(20, 20));
}

TEST_F(FMultiBoxMenuTest, IsAsHighAsItsEntriesIfItMay)
{
	Open(Make());
	EXPECT_EQ(Menu->height(), Menu->sizeHint().height());
	EXPECT_TRUE(Menu->rect().contains(Menu->actionGeometry(FindAction("Idle"))));
}

TEST_F(FMultiBoxMenuTest, HoldsTheMultiBoxOnlyWhileItIsOpen)
{
	TSharedPtr<const FMultiBox> Box = Make();
	const TWeakPtr<const FMultiBox> Weak = Box;
	Open(Box.ToSharedRef());
	Box.Reset();
	EXPECT_TRUE(Weak.IsValid());
	Menu->close();
	QCoreApplication::processEvents();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FMultiBoxMenuTest, LetsGoAtOnceWhenItIsAbandoned)
{
	TSharedPtr<const FMultiBox> Box = Make();
	const TWeakPtr<const FMultiBox> Weak = Box;
	Open(Box.ToSharedRef());
	Box.Reset();
	Menu->Abandon();
	EXPECT_FALSE(Weak.IsValid());
	FindAction("Alpha")->trigger();
	EXPECT_EQ(Done, "");
}
