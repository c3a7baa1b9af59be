// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "Panels/ViewportScene.h"

/** Draws the viewport's picture. */
class FViewportPainter
{
public:
	FViewportPainter(QPainter& InPainter, const FViewProjection& InView) : Painter(InPainter), View(InView) {}

	void DrawSky();
	void DrawGrid();
	/** With names and cameras' frustums; when very many can be seen, only of those that are selected. */
	void DrawItems(const FViewportScene& Scene);
	/** The world's directions, in the lower left. */
	void DrawAxes();
	void DrawTitle(const QString& Title);

private:
	void DrawGridLevel(double Step);
	void DrawFrustum(const FViewportScene::FItem& Item);
	void DrawName(const FViewportScene::FSeenItem& Seen);

	QPainter& Painter;
	const FViewProjection& View;
};
