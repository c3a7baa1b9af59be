// Copyright Corvane. MIT License.
#include "LevelViewportFixture.h"

#include <limits>

#include "Editor.h"
#include "Engine/World.h"
#include "LevelEditorViewport.h"
#include "StandaloneEditorEvents.h"

namespace
{
	using FLevelViewportTest = FLevelViewportFixture;

	constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
	const QRect Middle(304, 164, 32, 32);
	const QRect BelowMiddle(240, 198, 160, 18);
}

TEST_F(FLevelViewportTest, ShowsAnActorsIconAndNameWhereItStands)
{
	const QImage Empty = Take();
	const AActor& Actor = Spawn(Manager, FVector());
	const QImage Shown = Take();
	EXPECT_GT(CountDifferences(Empty, Shown, Middle), 50);
	EXPECT_GT(CountDifferences(Empty, Shown, BelowMiddle), 50);
	EXPECT_EQ(CountDifferences(Empty, Shown, QRect(0, 0, 160, 360)), 0) << TCHAR_TO_UTF8(*Actor.GetName());
}

TEST_F(FLevelViewportTest, ShowsSelectedActorsInOrange)
{
	AActor& Actor = Spawn(Manager, FVector());
	Spawn(Manager, FVector(0.0f, 200.0f, 0.0f));
	EXPECT_EQ(CountAccents(Take(), Middle.adjusted(-3, -3, 3, 22)), 0);
	Select({&Actor});
	const QImage Selected = Take();
	EXPECT_GT(CountAccents(Selected, Middle.adjusted(-3, -3, 3, 3)), 60);
	EXPECT_GT(CountAccents(Selected, BelowMiddle), 20);
	EXPECT_EQ(CountAccents(Selected, QRect(420, 140, 100, 100)), 0);
}

TEST_F(FLevelViewportTest, ShowsWhereACameraLooks)
{
	AActor& Camera = Spawn(TEXT("ZAVCineCamCapture"), FVector());
	const QImage Ahead = Take();
	Camera.SetActorRotation(FRotator(0.0f, 90.0f, 0.0f));
	const QImage ToTheRight = Take();
	EXPECT_GT(CountDifferences(Ahead, ToTheRight, QRect(345, 120, 80, 120)), 40);
	const QImage Before = Take();
	AActor& Other = Spawn(Manager, FVector(0.0f, -200.0f, 0.0f));
	Take();
	const QImage Unturned = Take();
	Other.SetActorRotation(FRotator(0.0f, 90.0f, 0.0f));
	EXPECT_EQ(CountDifferences(Unturned, Take(), Viewport.rect()), 0);
}

TEST_F(FLevelViewportTest, DrawsNearActorsOverFarOnes)
{
	Select({&Spawn(Manager, FVector())});
	const QRect RightOutline(336, 168, 3, 24);
	const int Outline = CountAccents(Take(), RightOutline);
	EXPECT_GT(Outline, 20);
	// Behind it and a little to the right, so that its icon would cover the outline.
	Spawn(TEXT("ZAVSpoutReceiverManager"), FVector(1000.0f, 75.0f, 0.0f));
	// Its edges are smooth, so what is behind may shine through a little.
	EXPECT_GT(CountAccents(Take(), RightOutline), Outline * 3 / 4);
	// In front of it.
	Spawn(TEXT("ZAVSpoutReceiverManager"), FVector(-100.0f, 20.0f, 0.0f));
	EXPECT_LT(CountAccents(Take(), RightOutline), Outline * 3 / 4);
}

TEST_F(FLevelViewportTest, LeavesOutNamesOfVeryManyActors)
{
	AActor& Watched = Spawn(Manager, FVector());
	for (int Index = 0; Index < 299; ++Index)
	{
		Spawn(Manager, FVector(0.0f, -300.0f, 0.0f));
	}
	const QImage Named = Take();
	Spawn(Manager, FVector(0.0f, -300.0f, 0.0f));
	const QImage Unnamed = Take();
	EXPECT_GT(CountDifferences(Named, Unnamed, BelowMiddle), 50);
	EXPECT_EQ(CountDifferences(Named, Unnamed, Middle), 0);
	Select({&Watched});
	EXPECT_GT(CountAccents(Take(), BelowMiddle), 20);
}

TEST_F(FLevelViewportTest, KeepsLongNamesShort)
{
	const QImage Empty = Take();
	FActorSpawnParameters Parameters;
	Parameters.Name = FName(*FString(std::u16string(900, u'W').c_str()));
	Editor.GetWorld(0)->SpawnActor(FindManager(), nullptr, nullptr, Parameters);
	const QImage Shown = Take();
	EXPECT_GT(CountDifferences(Empty, Shown, BelowMiddle), 50);
	EXPECT_EQ(CountDifferences(Empty, Shown, QRect(0, 0, 170, 360)), 0);
	Grab(Viewport, "viewport-long-name");
}

TEST_F(FLevelViewportTest, PaintsOnlyWhenSomethingHasChanged)
{
	AActor& Actor = Spawn(Manager, FVector());
	Frame(Viewport);
	const int Before = Viewport.GetNumPaintings();
	for (int Index = 0; Index < 5; ++Index)
	{
		Advance(0.1);
		Frame(Viewport);
	}
	EXPECT_EQ(Viewport.GetNumPaintings(), Before);
	Actor.SetActorLocation(FVector(0.0f, 1.0f, 0.0f));
	ExpectOnePainting("moved");
	Actor.SetActorLocation(FVector(0.0f, 1.25f, 0.0f));
	ExpectOnePainting("moved a little");
	Actor.SetActorLocation(FVector(0.25f, 1.25f, 0.0f));
	ExpectOnePainting("moved a little along X");
	Actor.SetActorRotation(FRotator(0.0f, 1.0f, 0.0f));
	ExpectOnePainting("turned");
	Select({&Actor});
	ExpectOnePainting("selected");
	GetClient().SetViewLocation(FVector(-400.0f, 0.0f, 0.0f));
	ExpectOnePainting("view moved");
	GetClient().SetViewRotation(FRotator(0.0f, 1.0f, 0.0f));
	ExpectOnePainting("view turned");
	GEditor->RedrawAllViewports();
	ExpectOnePainting("redraw");
	Editor.GetWorld(0)->DestroyActor(&Actor);
	ExpectOnePainting("destroyed");
}

TEST_F(FLevelViewportTest, PaintsAViewThatIsNowhereOnce)
{
	GetClient().SetViewLocation(FVector(NoNumber, 0.0f, 0.0f));
	ExpectOnePainting("nowhere");
	ExpectNoPainting();
	Spawn(Manager, FVector(NoNumber, NoNumber, 0.0f));
	ExpectOnePainting("actor nowhere");
	ExpectNoPainting();
}

TEST_F(FLevelViewportTest, StopsListeningWhenItGoes)
{
	// Made into memory that is watched by the address sanitizer where there is one.
	auto Other = std::make_unique<FLevelViewport>(Context);
	Other->Poll();
	Other.reset();
	GEditor->RedrawAllViewports();
	Select({&Spawn(Manager, FVector())});
	ExpectOnePainting("still there");
}

TEST_F(FLevelViewportTest, FollowsAnotherLevel)
{
	const QImage Empty = Take();
	Spawn(Manager, FVector());
	EXPECT_GT(CountDifferences(Empty, Take(), Middle), 50);
	GEditor->NewMap();
	EXPECT_EQ(CountDifferences(Empty, Take(), Viewport.rect()), 0);
}

TEST_F(FLevelViewportTest, ShowsNamesOfNewActorsInPlaceOfOldOnes)
{
	AActor& First = Spawn(Manager, FVector());
	const QImage OfFirst = Take();
	Editor.GetWorld(0)->DestroyActor(&First);
	// Its memory may be taken again.
	Editor.Tick();
	FActorSpawnParameters Parameters;
	Parameters.Name = FName("SomethingElse");
	Editor.GetWorld(0)->SpawnActor(FindManager(), nullptr, nullptr, Parameters);
	EXPECT_GT(CountDifferences(OfFirst, Take(), BelowMiddle), 50);
}

TEST_F(FLevelViewportTest, SaysSoWithoutAViewportOnTheLevel)
{
	GetClient().SetViewLocation(FVector());
	Spawn(Manager, FVector(500.0f, 0.0f, 0.0f));
	const QImage Shown = Take();
	Editor.GetViewports().Open({Editor.GetWorld(1)}, 0);
	const QImage Nothing = Take();
	EXPECT_GT(CountDifferences(Shown, Nothing, Middle), 50);
	Drag(Qt::RightButton, QPoint(100, 100), QPoint(200, 100));
	QTest::keyClick(&Viewport, Qt::Key_Up);
	QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, QPoint(320, 180));
	QTest::keyClick(&Viewport, Qt::Key_F);
	Frame(Viewport);
	EXPECT_EQ(GetClient().GetViewRotation(), FRotator());
	EXPECT_EQ(GetClient().GetViewLocation(), FVector());
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
}

TEST_F(FLevelViewportTest, SurvivesViewsAndActorsBeyondAllMeasure)
{
	const float Huge = std::numeric_limits<float>::max();
	const float Endless = std::numeric_limits<float>::infinity();
	Spawn(TEXT("ZAVCineCamCapture"), FVector(Huge, -Huge, Huge));
	Spawn(TEXT("ZAVCineCamCapture"), FVector(NoNumber, 0.0f, Endless));
	Spawn(TEXT("ZAVCineCamCapture"), FVector(-500.0f, 0.0f, 0.0f));
	Spawn(TEXT("ZAVCineCamCapture"), FVector()).SetActorRotation(FRotator(NoNumber, Endless, Huge));
	for (const float Place : {0.0f, -500.0f, 1.0e9f, Huge, -Huge, Endless, NoNumber})
	{
		for (const float Angle : {0.0f, 90.0f, -90.0f, 180.0f, 1.0e9f, Huge, Endless, NoNumber})
		{
			GetClient().SetViewLocation(FVector(Place, 0.0f, Place));
			GetClient().SetViewRotation(FRotator(Angle, Angle, Angle));
			ExpectOnePainting("beyond measure");
		}
	}
	for (const QSize Size : {QSize(80, 60), QSize(1900, 60), QSize(80, 1000)})
	{
		Viewport.resize(Size);
		Frame(Viewport);
		EXPECT_EQ(Viewport.grab().size(), Size);
	}
}

TEST_F(FLevelViewportTest, TurnsTheHorizonWithTheView)
{
	const auto GetBrightness = [this](float Pitch, QPoint At)
	{
		GetClient().SetViewLocation(FVector(0.0f, 0.0f, 1.0e8f));
		GetClient().SetViewRotation(FRotator(Pitch, 0.0f, 0.0f));
		return Take().pixelColor(At).blueF();
	};
	// The horizon is the brightest line; looking down moves it up.
	EXPECT_GT(GetBrightness(0.0f, QPoint(500, 179)), GetBrightness(0.0f, QPoint(500, 20)));
	EXPECT_GT(GetBrightness(-20.0f, QPoint(500, 62)), GetBrightness(-20.0f, QPoint(500, 179)));
	EXPECT_GT(GetBrightness(20.0f, QPoint(500, 295)), GetBrightness(20.0f, QPoint(500, 179)));
	// Upside down the ground is above.
	GetClient().SetViewRotation(FRotator(0.0f, 0.0f, 180.0f));
	const QImage UpsideDown = Take();
	GetClient().SetViewRotation(FRotator());
	const QImage Upright = Take();
	EXPECT_EQ(UpsideDown.pixelColor(500, 40), Upright.pixelColor(500, 319));
	GetClient().SetViewRotation(FRotator(0.0f, 0.0f, 30.0f));
	const QImage Rolled = Take();
	// Rolling clockwise turns what is seen the other way: to the right there is ground now.
	EXPECT_NE(Rolled.pixelColor(560, 140), Upright.pixelColor(560, 140));
	EXPECT_LT(Rolled.pixelColor(560, 140).blue(), Rolled.pixelColor(80, 220).blue());
}

TEST_F(FLevelViewportTest, HasAGridOnTheGroundThatEndsWithDistance)
{
	GetClient().SetViewLocation(FVector(0.0f, 0.0f, 200.0f));
	GetClient().SetViewRotation(FRotator(-20.0f, 0.0f, 0.0f));
	const QImage Near = Take();
	Grab(Viewport, "viewport-grid");
	GetClient().SetViewLocation(FVector(0.0f, 0.0f, 1.0e8f));
	const QImage Far = Take();
	EXPECT_GT(CountDifferences(Near, Far, QRect(0, 180, 640, 180)), 1000);
	EXPECT_EQ(CountDifferences(Near, Far, QRect(120, 10, 500, 50)), 0);
	// The grid lies still while the view moves above it by whole squares.
	GetClient().SetViewLocation(FVector(10000.0f, 0.0f, 200.0f));
	const QRect BelowHorizon(0, 80, 640, 280);
	EXPECT_LT(CountDifferences(Near, Take(), BelowHorizon), 50);
	GetClient().SetViewLocation(FVector(10050.0f, 0.0f, 200.0f));
	EXPECT_GT(CountDifferences(Near, Take(), BelowHorizon), 1000);
}

TEST_F(FLevelViewportTest, ShowsTenThousandActors)
{
	const auto Measure = [](const char* What, const std::function<void()>& Work)
	{
		QElapsedTimer Timer;
		Timer.start();
		Work();
		std::printf("%s: %.2f ms\n", What, static_cast<double>(Timer.nsecsElapsed()) / 1.0e6);
	};
	std::vector<AActor*> Actors;
	for (int Index = 0; Index < 10000; ++Index)
	{
		const float Row = static_cast<float>(Index / 100);
		const float Place = static_cast<float>(Index % 100);
		const TCHAR* Class = Index % 2 == 0 ? Manager : TEXT("ZAVCineCamCapture");
		Actors.push_back(&Spawn(Class, FVector(Row * 20.0f, (Place - 49.5f) * 8.0f, Row * 2.0f - 100.0f)));
	}
	const int Before = Viewport.GetNumPaintings();
	Measure("viewport reads", [this] { Viewport.Poll(); });
	Measure("viewport polls", [this] { Viewport.Poll(); });
	Measure("viewport paints", [] { QCoreApplication::processEvents(); });
	EXPECT_EQ(Viewport.GetNumPaintings(), Before + 1);
	Actors[0]->SetActorLocation(FVector(0.0f, 0.0f, 500.0f));
	Measure("viewport follows one that moved", [this] { Viewport.Poll(); });
	Measure("viewport paints", [] { QCoreApplication::processEvents(); });
	EXPECT_EQ(Viewport.GetNumPaintings(), Before + 2);
	Measure(
		"viewport selects", [this] { QTest::mouseClick(&Viewport, Qt::LeftButton, Qt::NoModifier, QPoint(320, 180)); });
	EXPECT_EQ(GetSelected().size(), 1U);
	// The engine's own selection takes a walk for each question, thus the square of their number for all of them.
	Actors.resize(2000);
	Measure("editor selects two thousand", [&] { Select(Actors); });
	Measure("viewport follows them", [this] { Viewport.Poll(); });
	Measure("viewport polls with them", [this] { Viewport.Poll(); });
	Measure("viewport paints them", [] { QCoreApplication::processEvents(); });
	EXPECT_GT(CountAccents(Take(), Viewport.rect()), 1000);
	Grab(Viewport, "viewport-many");
}

TEST_F(FLevelViewportTest, HasAPictureToLookAt)
{
	GetClient().SetViewLocation(FVector(-700.0f, -300.0f, 260.0f));
	GetClient().SetViewRotation(FRotator(-18.0f, 24.0f, 0.0f));
	Viewport.resize(960, 540);
	Spawn(Manager, FVector(0.0f, -100.0f, 0.0f));
	Spawn(TEXT("ZAVSpoutReceiverManager"), FVector(100.0f, 150.0f, 0.0f));
	AActor& Camera = Spawn(TEXT("ZAVCineCamCapture"), FVector(-150.0f, 60.0f, 80.0f));
	Camera.SetActorRotation(FRotator(-10.0f, 60.0f, 0.0f));
	Spawn(TEXT("ZAVCineCamCapture"), FVector(300.0f, -200.0f, 120.0f));
	Select({&Camera});
	EXPECT_GT(CountAccents(Take(), Viewport.rect()), 100);
	Grab(Viewport, "viewport");
}
