// Copyright Corvane. MIT License.
#include "LevelViewportFixture.h"

#include "Editor.h"
#include "Engine/World.h"
#include "LevelEditorViewport.h"

namespace
{
	using FLevelViewportInputTest = FLevelViewportFixture;
	using FActors = std::vector<AActor*>;

	const QPoint Centre(320, 180);

	void ExpectNear(const FVector& Value, float X, float Y, float Z)
	{
		EXPECT_NEAR(Value.X, X, 0.1f);
		EXPECT_NEAR(Value.Y, Y, 0.1f);
		EXPECT_NEAR(Value.Z, Z, 0.1f);
	}
}

TEST_F(FLevelViewportInputTest, TurnsTheViewByDraggingWithTheRightButton)
{
	Drag(Qt::RightButton, QPoint(100, 100), QPoint(180, 60));
	EXPECT_EQ(GetClient().GetViewRotation(), FRotator(10.0f, 20.0f, 0.0f));
	ExpectNear(GetClient().GetViewLocation(), -500.0f, 0.0f, 0.0f);
	Drag(Qt::LeftButton, QPoint(100, 100), QPoint(180, 60));
	EXPECT_EQ(GetClient().GetViewRotation(), FRotator(10.0f, 20.0f, 0.0f));
}

TEST_F(FLevelViewportInputTest, TurnsUpAndDownByEightyNineDegreesAtMost)
{
	Drag(Qt::RightButton, QPoint(100, 3000), QPoint(100, 0));
	EXPECT_EQ(GetClient().GetViewRotation().Pitch, 89.0f);
	Drag(Qt::RightButton, QPoint(100, 0), QPoint(100, 3000));
	EXPECT_EQ(GetClient().GetViewRotation().Pitch, -89.0f);
	// Round and round, but never to great numbers.
	Drag(Qt::RightButton, QPoint(0, 0), QPoint(1480, 0));
	EXPECT_NEAR(GetClient().GetViewRotation().Yaw, 10.0f, 0.001f);
}

TEST_F(FLevelViewportInputTest, FliesWithLettersWhileTheRightButtonIsHeld)
{
	struct FKey
	{
		Qt::Key Key;
		FVector Moved;
	};
	GetClient().SetViewRotation(FRotator(0.0f, 90.0f, 0.0f));
	for (const FKey& Key : {FKey{Qt::Key_W, {0.0f, 60.0f, 0.0f}}, FKey{Qt::Key_S, {0.0f, -60.0f, 0.0f}},
			 FKey{Qt::Key_D, {-60.0f, 0.0f, 0.0f}}, FKey{Qt::Key_A, {60.0f, 0.0f, 0.0f}},
			 FKey{Qt::Key_E, {0.0f, 0.0f, 60.0f}}, FKey{Qt::Key_Q, {0.0f, 0.0f, -60.0f}}})
	{
		GetClient().SetViewLocation(FVector());
		QTest::keyClick(&Viewport, Key.Key);
		Frame(Viewport);
		ExpectNear(GetClient().GetViewLocation(), 0.0f, 0.0f, 0.0f);
		Send(QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton, Centre);
		QTest::keyPress(&Viewport, Key.Key);
		Advance(0.1);
		Frame(Viewport);
		ExpectNear(GetClient().GetViewLocation(), Key.Moved.X, Key.Moved.Y, Key.Moved.Z);
		// The letter is still held, but nobody flies any more.
		Send(QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton, Centre);
		Advance(0.1);
		Frame(Viewport);
		ExpectNear(GetClient().GetViewLocation(), Key.Moved.X, Key.Moved.Y, Key.Moved.Z);
		QTest::keyRelease(&Viewport, Key.Key);
	}
}

TEST_F(FLevelViewportInputTest, MovesWithTheArrowsByTheTimeThatPasses)
{
	QTest::keyPress(&Viewport, Qt::Key_Up);
	Advance(0.1);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -440.0f, 0.0f, 0.0f);
	Advance(0.2);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -320.0f, 0.0f, 0.0f);
	QTest::keyRelease(&Viewport, Qt::Key_Up);
	Advance(0.2);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -320.0f, 0.0f, 0.0f);
	QTest::keyPress(&Viewport, Qt::Key_Right);
	QTest::keyPress(&Viewport, Qt::Key_Down);
	Advance(0.1);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -380.0f, 60.0f, 0.0f);
}

TEST_F(FLevelViewportInputTest, MovesAStepForAKeyThatIsOnlyTapped)
{
	Advance(0.016);
	Frame(Viewport);
	QTest::keyClick(&Viewport, Qt::Key_Left);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -500.0f, -10.0f, 0.0f);
	Advance(0.1);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -500.0f, -10.0f, 0.0f);
}

TEST_F(FLevelViewportInputTest, TakesNoKeyForPressedThatOnlyRepeats)
{
	QKeyEvent Repeated(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), true);
	QApplication::sendEvent(&Viewport, &Repeated);
	EXPECT_TRUE(Repeated.isAccepted());
	Advance(0.1);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -500.0f, 0.0f, 0.0f);
	// Nor one for released.
	QTest::keyPress(&Viewport, Qt::Key_Up);
	QKeyEvent Between(QEvent::KeyRelease, Qt::Key_Up, Qt::NoModifier, QString(), true);
	QApplication::sendEvent(&Viewport, &Between);
	Frame(Viewport);
	Advance(0.1);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -430.0f, 0.0f, 0.0f);
}

TEST_F(FLevelViewportInputTest, DoesNotFlyAwayDuringAPause)
{
	QTest::keyPress(&Viewport, Qt::Key_Up);
	Advance(60.0);
	Frame(Viewport);
	ExpectNear(GetClient().GetViewLocation(), -350.0f, 0.0f, 0.0f);
}

TEST_F(FLevelViewportInputTest, StopsMovingWhenItLosesTheFocus)
{
	QLineEdit Other;
	ShowPanel(Other, 100, 20);
	Viewport.activateWindow();
	Viewport.setFocus();
	QTest::keyPress(&Viewport, Qt::Key_Up);
	Frame(Viewport);
	const FVector Before = GetClient().GetViewLocation();
	Other.activateWindow();
	Other.setFocus();
	QCoreApplication::processEvents();
	Advance(0.1);
	Frame(Viewport);
	EXPECT_EQ(GetClient().GetViewLocation(), Before);
}

TEST_F(FLevelViewportInputTest, LeavesOtherKeysToTheWindow)
{
	for (const int Key : {Qt::Key_W, Qt::Key_Escape, Qt::Key_Return})
	{
		QKeyEvent Event(QEvent::KeyPress, Key, Qt::NoModifier);
		QApplication::sendEvent(&Viewport, &Event);
		EXPECT_FALSE(Event.isAccepted()) << Key;
	}
	QKeyEvent WithControl(QEvent::KeyPress, Qt::Key_F, Qt::ControlModifier);
	QApplication::sendEvent(&Viewport, &WithControl);
	EXPECT_FALSE(WithControl.isAccepted());
	EXPECT_EQ(LastSaid, QString());
}

TEST_F(FLevelViewportInputTest, MovesForwardWithTheWheel)
{
	GetClient().SetViewRotation(FRotator(0.0f, 90.0f, 0.0f));
	Turn(120);
	ExpectNear(GetClient().GetViewLocation(), -500.0f, 100.0f, 0.0f);
	Turn(-240);
	ExpectNear(GetClient().GetViewLocation(), -500.0f, -100.0f, 0.0f);
}

TEST_F(FLevelViewportInputTest, PansByDraggingWithTheMiddleButton)
{
	Drag(Qt::MiddleButton, QPoint(100, 100), QPoint(120, 70));
	ExpectNear(GetClient().GetViewLocation(), -500.0f, 40.0f, 60.0f);
	EXPECT_EQ(GetClient().GetViewRotation(), FRotator());
}

TEST_F(FLevelViewportInputTest, ShowsTheSelectionFromTheSameDirection)
{
	AActor& Left = Spawn(Manager, FVector(1000.0f, -300.0f, 50.0f));
	AActor& Right = Spawn(Manager, FVector(1000.0f, 300.0f, 50.0f));
	Select({&Left, &Right});
	const FRotator Before(-30.0f, 45.0f, 0.0f);
	GetClient().SetViewRotation(Before);
	QTest::keyClick(&Viewport, Qt::Key_F);
	EXPECT_EQ(GetClient().GetViewRotation(), Before);
	// Both are seen, the middle between them in the centre.
	const FViewProjection View(GetClient().GetViewLocation(), Before, QSizeF(640.0, 360.0));
	QPointF Pixel;
	double Depth = 0.0;
	ASSERT_TRUE(View.Project({1000.0, 0.0, 50.0}, 0.0, Pixel, Depth));
	EXPECT_NEAR(Pixel.x(), 320.0, 0.1);
	EXPECT_NEAR(Pixel.y(), 180.0, 0.1);
	EXPECT_TRUE(View.Project({1000.0, -300.0, 50.0}, 0.0, Pixel, Depth));
	EXPECT_TRUE(View.Project({1000.0, 300.0, 50.0}, 0.0, Pixel, Depth));
	EXPECT_LT(Depth, 1500.0);
}

TEST_F(FLevelViewportInputTest, ComesCloserToASmallSelection)
{
	Select({&Spawn(Manager, FVector(1000.0f, 0.0f, 0.0f))});
	Viewport.FocusSelection();
	ExpectNear(GetClient().GetViewLocation(), 1000.0f - 102.0f, 0.0f, 0.0f);
}

TEST_F(FLevelViewportInputTest, FindsBackFromNowhere)
{
	const float NoNumber = std::nanf("");
	Select({&Spawn(Manager, FVector(0.0f, 0.0f, 7.0f)), &Spawn(Manager, FVector(NoNumber, 0.0f, 0.0f))});
	GetClient().SetViewLocation(FVector(NoNumber, 0.0f, 0.0f));
	GetClient().SetViewRotation(FRotator(NoNumber, 0.0f, 0.0f));
	Frame(Viewport);
	QTest::keyClick(&Viewport, Qt::Key_F);
	ExpectNear(GetClient().GetViewLocation(), -102.0f, 0.0f, 7.0f);
	EXPECT_EQ(GetClient().GetViewRotation(), FRotator());
}

TEST_F(FLevelViewportInputTest, SaysThatThereIsNothingToShow)
{
	const FVector Before = GetClient().GetViewLocation();
	QTest::keyClick(&Viewport, Qt::Key_F);
	EXPECT_EQ(LastSaid, QStringLiteral("Select an actor to show it"));
	EXPECT_EQ(GetClient().GetViewLocation(), Before);
}

TEST_F(FLevelViewportInputTest, SelectsTheNearestActorUnderThePointer)
{
	AActor& Far = Spawn(Manager, FVector(200.0f, 0.0f, 0.0f));
	AActor& Near = Spawn(Manager, FVector());
	AActor& Farthest = Spawn(Manager, FVector(400.0f, 0.0f, 0.0f));
	Spawn(Manager, FVector(-600.0f, 0.0f, 0.0f));
	Frame(Viewport);
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, Centre);
	EXPECT_EQ(GetSelected(), FActors{&Near});
	Editor.GetWorld(0)->DestroyActor(&Near);
	// Even before the picture has followed.
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, Centre + QPoint(15, -15));
	EXPECT_EQ(GetSelected(), FActors{&Far});
	EXPECT_FALSE(Farthest.IsPendingKill());
}

TEST_F(FLevelViewportInputTest, HitsAnActorWithinItsIconOnly)
{
	AActor& Actor = Spawn(Manager, FVector());
	Frame(Viewport);
	for (const QPoint Edge : {QPoint(-15, 0), QPoint(15, 0), QPoint(0, -15), QPoint(0, 15)})
	{
		Select({});
		QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, Centre + Edge);
		EXPECT_EQ(GetSelected(), FActors{&Actor});
		QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, Centre + Edge * 2);
		EXPECT_EQ(GetSelected(), FActors{});
	}
}

TEST_F(FLevelViewportInputTest, AddsAndRemovesWithControl)
{
	AActor& Left = Spawn(Manager, FVector(0.0f, -100.0f, 0.0f));
	AActor& Right = Spawn(Manager, FVector(0.0f, 100.0f, 0.0f));
	Frame(Viewport);
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, QPoint(384, 180));
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::ControlModifier, QPoint(256, 180));
	EXPECT_EQ(GetSelected(), (FActors{&Right, &Left}));
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::ControlModifier, QPoint(384, 180));
	EXPECT_EQ(GetSelected(), FActors{&Left});
	// Beside all actors, which is no change that anybody hears of.
	int NumChanges = 0;
	const FDelegateHandle Handle =
		USelection::SelectionChangedEvent.AddLambda([&NumChanges](UObject*) { ++NumChanges; });
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::ControlModifier, QPoint(320, 40));
	USelection::SelectionChangedEvent.Remove(Handle);
	EXPECT_EQ(NumChanges, 0);
	EXPECT_EQ(GetSelected(), FActors{&Left});
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, QPoint(320, 40));
	EXPECT_EQ(GetSelected(), FActors{});
}

TEST_F(FLevelViewportInputTest, DoesNotTakeADragForAClick)
{
	Spawn(Manager, FVector());
	Frame(Viewport);
	Drag(Qt::LeftButton, Centre - QPoint(40, 0), Centre);
	EXPECT_EQ(GetSelected(), FActors{});
	QTest::mouseClick(&Viewport, Qt::RightButton, Qt::NoModifier, Centre);
	EXPECT_EQ(GetSelected(), FActors{});
}

TEST_F(FLevelViewportInputTest, IsReachableByKeyboardAndHasAName)
{
	EXPECT_TRUE(Viewport.focusPolicy() & Qt::TabFocus);
	EXPECT_EQ(Viewport.accessibleName(), QStringLiteral("Perspective viewport"));
	Viewport.clearFocus();
	const QImage Without = Take();
	Viewport.setFocus();
	const QImage With = Take();
	EXPECT_EQ(CountAccents(Without, QRect(0, 0, 640, 1)), 0);
	EXPECT_GT(CountAccents(With, QRect(0, 0, 640, 1)), 600);
}
