// Copyright Corvane. MIT License.
#include "LevelViewportFixture.h"

#include "ActorEdits.h"
#include "Editor.h"
#include "LevelEditorViewport.h"
#include "TestEditor.h"
#include "UObject/Class.h"
#include "WindowStyle.h"

FLevelViewportFixture::FLevelViewportFixture()
{
	ShowPanel(Viewport, 640, 360);
	GetClient().SetViewLocation(FVector(-500.0f, 0.0f, 0.0f));
	Frame(Viewport);
}

UClass* FLevelViewportFixture::FindManager()
{
	return FindObject<UClass>(ANY_PACKAGE, Manager);
}

AActor& FLevelViewportFixture::Spawn(const TCHAR* ClassName, const FVector& Location)
{
	AActor& Actor = FTestEditor::Spawn(*Editor.GetWorld(0), ClassName);
	Actor.SetActorLocation(Location);
	return Actor;
}

void FLevelViewportFixture::Select(const std::vector<AActor*>& Actors)
{
	FActorEdits::SelectOnly(Actors);
}

std::vector<AActor*> FLevelViewportFixture::GetSelected()
{
	std::vector<AActor*> Selected;
	for (int32 Index = 0; Index < GEditor->GetSelectedActors()->Num(); ++Index)
	{
		Selected.push_back(static_cast<AActor*>(GEditor->GetSelectedActors()->GetSelectedObject(Index)));
	}
	return Selected;
}

QImage FLevelViewportFixture::Take()
{
	Frame(Viewport);
	return Viewport.grab().toImage();
}

void FLevelViewportFixture::ExpectOnePainting(const char* Why)
{
	const int Before = Viewport.GetNumPaintings();
	Frame(Viewport);
	EXPECT_EQ(Viewport.GetNumPaintings(), Before + 1) << Why;
}

void FLevelViewportFixture::ExpectNoPainting()
{
	const int Before = Viewport.GetNumPaintings();
	Frame(Viewport);
	EXPECT_EQ(Viewport.GetNumPaintings(), Before);
}

void FLevelViewportFixture::Send(QEvent::Type Type, Qt::MouseButton Button, Qt::MouseButtons Buttons, QPoint At)
{
	QMouseEvent Event(Type, QPointF(At), Viewport.mapToGlobal(QPointF(At)), Button, Buttons, Qt::NoModifier);
	QApplication::sendEvent(&Viewport, &Event);
}

void FLevelViewportFixture::Drag(Qt::MouseButton Button, QPoint From, QPoint To)
{
	Send(QEvent::MouseButtonPress, Button, Button, From);
	Send(QEvent::MouseMove, Qt::NoButton, Button, (From + To) / 2);
	Send(QEvent::MouseMove, Qt::NoButton, Button, To);
	Send(QEvent::MouseButtonRelease, Button, Qt::NoButton, To);
}

void FLevelViewportFixture::Turn(int WheelDelta)
{
	const QPointF At(320.0, 180.0);
	QWheelEvent Event(At, Viewport.mapToGlobal(At), QPoint(), QPoint(0, WheelDelta), Qt::NoButton, Qt::NoModifier,
		Qt::NoScrollPhase, false);
	QApplication::sendEvent(&Viewport, &Event);
}

namespace
{
	int GetDistance(const QColor& Left, const QColor& Right)
	{
		return qAbs(Left.red() - Right.red()) + qAbs(Left.green() - Right.green()) + qAbs(Left.blue() - Right.blue());
	}
}

int FLevelViewportFixture::CountDifferences(const QImage& Left, const QImage& Right, const QRect& Within)
{
	// How the painter rounds depends on where a picture lies in memory.
	constexpr int Rounding = 24;
	int Count = 0;
	for (int Y = Within.top(); Y <= Within.bottom(); ++Y)
	{
		for (int X = Within.left(); X <= Within.right(); ++X)
		{
			Count += GetDistance(Left.pixelColor(X, Y), Right.pixelColor(X, Y)) > Rounding;
		}
	}
	return Count;
}

int FLevelViewportFixture::CountAccents(const QImage& Image, const QRect& Within)
{
	constexpr int NearEnough = 90;
	const QColor Accent = FWindowStyle::GetColours().Accent;
	int Count = 0;
	for (int Y = Within.top(); Y <= Within.bottom(); ++Y)
	{
		for (int X = Within.left(); X <= Within.right(); ++X)
		{
			Count += GetDistance(Image.pixelColor(X, Y), Accent) < NearEnough;
		}
	}
	return Count;
}
