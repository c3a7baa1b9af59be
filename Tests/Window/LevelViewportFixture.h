// Copyright Corvane. MIT License.
#pragma once

#include "WindowFixture.h"

#include <QtTest/QTest>
#include <vector>

#include "Engine/Selection.h"
#include "GameFramework/Actor.h"
#include "Panels/LevelViewport.h"

class FLevelEditorViewportClient;

/** The viewport in 640 by 360, five metres before the world's origin, at which it looks along X. */
class FLevelViewportFixture : public FWindowFixture
{
protected:
	FLevelViewportFixture();

	FLevelEditorViewportClient& GetClient() const { return Editor.GetLevelClient(); }
	static UClass* FindManager();
	AActor& Spawn(const TCHAR* ClassName, const FVector& Location);
	static void Select(const std::vector<AActor*>& Actors);
	static std::vector<AActor*> GetSelected();

	/** A frame, and what can be seen then. */
	QImage Take();
	void ExpectOnePainting(const char* Why);
	void ExpectNoPainting();

	void Send(QEvent::Type Type, Qt::MouseButton Button, Qt::MouseButtons Buttons, QPoint At);
	void Drag(Qt::MouseButton Button, QPoint From, QPoint To);
	void Turn(int WheelDelta);

	static int CountDifferences(const QImage& Left, const QImage& Right, const QRect& Within);
	/** Pixels in the colour of what is selected. */
	static int CountAccents(const QImage& Image, const QRect& Within);

	static constexpr const TCHAR* Manager = TEXT("ZAVSpoutSenderManager");

	FLevelViewport Viewport{Context};
};
