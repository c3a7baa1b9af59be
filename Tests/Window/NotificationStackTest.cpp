// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include "AuthDelegates.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Panels/NotificationFrame.h"
#include "Panels/NotificationStack.h"
#include "WindowFixture.h"

namespace
{
	class FNotificationStackTest : public FWindowFixture
	{
	protected:
		FNotificationStackTest()
		{
			Box = new QLineEdit;
			Window.setCentralWidget(Box);
			Stack = new FNotificationStack(Context, Window);
			Stack->Announce = [this](QWidget& Frame) { LastAlert = &Frame; };
			ShowPanel(Window, 1000, 700);
			Box->setFocus();
			Frame(*Stack);
		}

		TSharedPtr<SNotificationItem> Add(const FString& Text, bool bButton = false)
		{
			FNotificationInfo Info(FText::FromString(Text));
			Info.bFireAndForget = false;
			Info.ExpireDuration = 5.0f;
			Info.FadeOutDuration = 1.0f;
			if (bButton)
			{
				Info.ButtonDetails.Add(
					FNotificationButtonInfo(FText::FromString(TEXT("Press & Go")), FText::FromString(TEXT("Tip")),
						FSimpleDelegate::CreateLambda([this] { ++Pressed; }), SNotificationItem::CS_None));
				Info.ButtonDetails.Add(FNotificationButtonInfo(FText::FromString(TEXT("Later")), FText(),
					FSimpleDelegate::CreateLambda([this] { Pressed += 10; }), SNotificationItem::CS_Pending));
			}
			return FSlateNotificationManager::Get().AddNotification(Info);
		}
		FNotificationFrame& Get(size_t Index) { return *Stack->GetFrames().at(Index); }
		QRect PlaceOf(size_t Index) { return QRect(Get(Index).mapTo(&Window, QPoint()), Get(Index).size()); }
		QPushButton* FindButton(const char* Name)
		{
			for (QPushButton* Button : Window.findChildren<QPushButton*>())
			{
				if (Button->accessibleName() == QString::fromLatin1(Name) && Button->isVisible())
				{
					return Button;
				}
			}
			return nullptr;
		}
		QString GetMore()
		{
			const QLabel* Label = Stack->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
			return Label->isVisible() ? Label->text() : QString();
		}

		QMainWindow Window;
		QLineEdit* Box = nullptr;
		FNotificationStack* Stack = nullptr;
		QWidget* LastAlert = nullptr;
		int Pressed = 0;
	};
}

TEST_F(FNotificationStackTest, ShowsNothingOverTheWindowAtFirst)
{
	EXPECT_FALSE(Stack->isVisible());
	EXPECT_TRUE(Stack->GetFrames().empty());
}

TEST_F(FNotificationStackTest, PutsTheNewestAtTheLowerRightAndOlderOnesAbove)
{
	Add(TEXT("First"));
	Frame(*Stack);
	Add(TEXT("Second\nof two lines"));
	Frame(*Stack);
	ASSERT_EQ(Stack->GetFrames().size(), 2U);
	EXPECT_EQ(Get(0).accessibleName(), QStringLiteral("Second\nof two lines"));
	EXPECT_EQ(Get(1).accessibleName(), QStringLiteral("First"));
	EXPECT_EQ(PlaceOf(0).right(), 1000 - 16 - 1);
	EXPECT_EQ(PlaceOf(0).bottom(), 700 - 16 - 1);
	EXPECT_EQ(PlaceOf(0).top() - PlaceOf(1).bottom() - 1, 8);
	EXPECT_GT(Get(0).height(), Get(1).height());
	EXPECT_TRUE(Get(0).isVisible());
}

TEST_F(FNotificationStackTest, NeverTakesTheFocusAndIsAnnounced)
{
	const QPointer<QWidget> Before = QApplication::focusWidget();
	ASSERT_EQ(Before, Box);
	Add(TEXT("Look"), true);
	Frame(*Stack);
	EXPECT_EQ(QApplication::focusWidget(), Box);
	EXPECT_EQ(LastAlert, &Get(0));
	LastAlert = nullptr;
	Frame(*Stack);
	EXPECT_EQ(LastAlert, nullptr) << "once is enough";
}

TEST_F(FNotificationStackTest, PressesAButtonByThePointer)
{
	Add(TEXT("Look"), true);
	Frame(*Stack);
	QPushButton* Button = FindButton("Press & Go");
	ASSERT_NE(Button, nullptr);
	EXPECT_EQ(Button->text(), QStringLiteral("Press && Go"));
	EXPECT_TRUE(Button->toolTip().contains(QStringLiteral("Tip")));
	EXPECT_EQ(FindButton("Later"), nullptr) << "not in this state";
	QTest::mouseClick(Button, Qt::LeftButton);
	EXPECT_EQ(Pressed, 1);
}

TEST_F(FNotificationStackTest, ShowsTheButtonsOfTheState)
{
	const TSharedPtr<SNotificationItem> Item = Add(TEXT("Look"), true);
	Frame(*Stack);
	Item->SetCompletionState(SNotificationItem::CS_Pending);
	Frame(*Stack);
	EXPECT_EQ(FindButton("Press & Go"), nullptr);
	QPushButton* Button = FindButton("Later");
	ASSERT_NE(Button, nullptr);
	QTest::mouseClick(Button, Qt::LeftButton);
	EXPECT_EQ(Pressed, 10);
	const int High = Get(0).height();
	Item->SetCompletionState(SNotificationItem::CS_Success);
	Frame(*Stack);
	EXPECT_LT(Get(0).height(), High) << "without buttons";
}

TEST_F(FNotificationStackTest, DoesNotPressWhatWentSinceItWasShown)
{
	TSharedPtr<SNotificationItem> Item = Add(TEXT("Look"), true);
	Frame(*Stack);
	QPushButton* Button = FindButton("Press & Go");
	ASSERT_NE(Button, nullptr);
	Item->SetCompletionState(SNotificationItem::CS_Success);
	QTest::mouseClick(Button, Qt::LeftButton);
	EXPECT_EQ(Pressed, 0);
	Item.Reset();
	FSlateNotificationManager::Get().CloseAll();
	QTest::mouseClick(Button, Qt::LeftButton);
	EXPECT_EQ(Pressed, 0);
}

TEST_F(FNotificationStackTest, GoesWhenItExpires)
{
	const TSharedPtr<SNotificationItem> Item = Add(TEXT("Look"));
	Frame(*Stack);
	Item->ExpireAndFadeout();
	Advance(5.9);
	Frame(*Stack);
	EXPECT_EQ(Stack->GetFrames().size(), 1U);
	Advance(0.2);
	Frame(*Stack);
	EXPECT_TRUE(Stack->GetFrames().empty());
	EXPECT_FALSE(Stack->isVisible());
}

TEST_F(FNotificationStackTest, IsReachedByF6AndLeftByItAgain)
{
	Add(TEXT("Old"), true);
	Add(TEXT("New"));
	Frame(*Stack);
	QTest::keyClick(Box, Qt::Key_F6);
	EXPECT_TRUE(Get(0).hasFocus()) << "it has no buttons";
	QTest::keyClick(&Get(0), Qt::Key_F6);
	EXPECT_TRUE(FindButton("Press & Go")->hasFocus());
	QTest::keyClick(FindButton("Press & Go"), Qt::Key_Return);
	EXPECT_EQ(Pressed, 1);
	QTest::keyClick(FindButton("Press & Go"), Qt::Key_F6);
	EXPECT_TRUE(Box->hasFocus());
	QTest::keyClick(Box, Qt::Key_F6);
	QTest::keyClick(&Get(0), Qt::Key_Escape);
	EXPECT_TRUE(Box->hasFocus());
}

TEST_F(FNotificationStackTest, LeavesTheFocusAloneWithoutNotifications)
{
	QTest::keyClick(Box, Qt::Key_F6);
	EXPECT_TRUE(Box->hasFocus());
}

TEST_F(FNotificationStackTest, GivesTheFocusBackWhenItGoes)
{
	// Not the box that Qt would choose, which is the first.
	QLineEdit Second(&Window);
	Second.show();
	Second.setFocus();
	Add(TEXT("Look"), true);
	Frame(*Stack);
	QTest::keyClick(&Second, Qt::Key_F6);
	ASSERT_TRUE(FindButton("Press & Go")->hasFocus());
	FSlateNotificationManager::Get().CloseAll();
	Frame(*Stack);
	EXPECT_TRUE(Second.hasFocus());
}

TEST_F(FNotificationStackTest, KeepsATextOfAnyLengthWithinItsBoundsAndButtonsInSight)
{
	const std::u16string Units(1U << 20U, u'W');
	const FString Long(static_cast<int32>(Units.size()), Units.data());
	for (const FString& Text :
		{Long, Long.Replace(TEXT("WWWW"), TEXT("WWW\n")), Long.Replace(TEXT("WWW"), TEXT("WW "))})
	{
		Add(Text, true);
		Frame(*Stack);
		EXPECT_LE(Get(0).width(), 360);
		EXPECT_LE(Get(0).height(), 700 / 3);
		EXPECT_GT(Get(0).height(), 150) << "all of it on one line";
		EXPECT_LE(Get(0).accessibleName().size(), 2001);
		const QPushButton* Button = FindButton("Press & Go");
		ASSERT_NE(Button, nullptr);
		EXPECT_TRUE(Get(0).rect().contains(QRect(Button->mapTo(&Get(0), QPoint()), Button->size())));
		EXPECT_EQ(Window.size(), QSize(1000, 700));
		Grab(Window, "notification-long");
		FSlateNotificationManager::Get().CloseAll();
		Frame(*Stack);
	}
}

TEST_F(FNotificationStackTest, SetsRightToLeftTextsFromTheRight)
{
	Add(FString(TEXT("\u05D0\u05D1\u05D2 \u05D3\u05D4")), true);
	Add(FString(TEXT("Left to right & <b>plain</b>")));
	Frame(*Stack);
	EXPECT_EQ(Get(0).accessibleName(), QStringLiteral("Left to right & <b>plain</b>"));
	Grab(Window, "notification-rtl");
	// The dark frame's inner half is lit by letters on the right only.
	const QImage Image = Get(1).grab().toImage();
	int Left = 0;
	int Right = 0;
	for (int X = 14; X < Image.width() - 14; ++X)
	{
		for (int Y = 12; Y < 36; ++Y)
		{
			const bool bLit = qGray(Image.pixel(X, Y)) > 120;
			Left += bLit && X < Image.width() / 3 ? 1 : 0;
			Right += bLit && X > Image.width() * 2 / 3 ? 1 : 0;
		}
	}
	EXPECT_GT(Right, Left);
}

TEST_F(FNotificationStackTest, CountsWhatThereIsNoRoomFor)
{
	for (int Index = 0; Index < 30; ++Index)
	{
		Add(FString::Printf(TEXT("Number %d"), Index));
	}
	Frame(*Stack);
	const size_t Shown = Stack->GetFrames().size();
	ASSERT_GT(Shown, 3U);
	ASSERT_LT(Shown, 30U);
	EXPECT_EQ(GetMore(), QStringLiteral("%1 more").arg(30 - Shown));
	EXPECT_EQ(Get(0).accessibleName(), QStringLiteral("Number 29"));
	EXPECT_GE(Stack->y(), 16);
	Grab(Window, "notification-many");
	const QPointer<FNotificationFrame> Newest = &Get(0);
	Window.resize(1000, 1400);
	Frame(*Stack);
	Frame(*Stack);
	EXPECT_GT(Stack->GetFrames().size(), Shown);
	EXPECT_EQ(&Get(0), Newest) << "what is shown already stays";
	EXPECT_EQ(GetMore(), QStringLiteral("%1 more").arg(30 - Stack->GetFrames().size()));
	FSlateNotificationManager::Get().CloseAll();
	Add(TEXT("Alone"));
	Frame(*Stack);
	EXPECT_EQ(GetMore(), QString());
}

TEST_F(FNotificationStackTest, FollowsTheWindowsSizeAtOnce)
{
	Add(TEXT("Look"));
	Frame(*Stack);
	Window.resize(800, 500);
	QCoreApplication::processEvents();
	EXPECT_EQ(PlaceOf(0).right(), 800 - 16 - 1);
	EXPECT_EQ(PlaceOf(0).bottom(), 500 - 16 - 1);
}

TEST_F(FNotificationStackTest, StaysAboveTheStatusBarAndAbovePanelsThatComeLater)
{
	Window.statusBar()->showMessage(QStringLiteral("Ready"));
	Add(TEXT("Look"));
	Frame(*Stack);
	EXPECT_LT(PlaceOf(0).bottom(), Window.statusBar()->y());
	QWidget Late(&Window);
	Late.setGeometry(Window.rect());
	Late.show();
	Frame(*Stack);
	EXPECT_EQ(Window.childAt(PlaceOf(0).center())->window(), &Window);
	EXPECT_TRUE(
		Stack->isAncestorOf(Window.childAt(PlaceOf(0).center())) || Window.childAt(PlaceOf(0).center()) == &Get(0));
}

TEST_F(FNotificationStackTest, ShowsTheRelease)
{
	AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("2.1"), TEXT("https://corvane.example/download/Release_2.1.zip"));
	Frame(*Stack);
	ASSERT_EQ(Stack->GetFrames().size(), 1U);
	EXPECT_TRUE(Get(0).accessibleName().contains(QStringLiteral("2.1")));
	EXPECT_NE(Get(0).findChild<QLabel*>(), nullptr) << "its image";
	Grab(Window, "notification");
	Get(0).TakeFocus();
	Grab(Window, "notification-focus");
}

TEST_F(FNotificationStackTest, FollowsATextThatChanges)
{
	FString Now = TEXT("One");
	FNotificationInfo Info(FText::GetEmpty());
	Info.Text =
		TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([&Now] { return FText::FromString(Now); }));
	Info.bFireAndForget = false;
	FSlateNotificationManager::Get().AddNotification(Info);
	Frame(*Stack);
	const int High = Get(0).height();
	Now = TEXT("One\nTwo");
	Frame(*Stack);
	EXPECT_EQ(Get(0).accessibleName(), QStringLiteral("One\nTwo"));
	EXPECT_GT(Get(0).height(), High);
	Now = TEXT("One\nTen");
	Frame(*Stack);
	EXPECT_EQ(Get(0).accessibleName(), QStringLiteral("One\nTen")) << "of the same length";
	FSlateNotificationManager::Get().CloseAll();
	Frame(*Stack);
}
