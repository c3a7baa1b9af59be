// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "Panels/Panel.h"
#include "Panels/ViewportKeys.h"
#include "Panels/ViewportScene.h"
#include "WindowContext.h"

class FEditorViewportClient;

/**
 * The open level in perspective, as the editor's active viewport has it: actors as icons above a grid. Dragging with
 * the right button turns the view, and W, A, S, D, Q and E fly meanwhile; the middle button pans; the wheel and the
 * arrows move; F shows what is selected. A click selects.
 */
class FLevelViewport : public FPanel
{
public:
	explicit FLevelViewport(FWindowContext& InContext, QWidget* Parent = nullptr);
	~FLevelViewport() override;

	void Poll() override;
	QSize sizeHint() const override { return QSize(640, 360); }

	/** Moves the view, without turning it, to where it shows all that is selected. Says so if nothing is. */
	void FocusSelection();

	/** How often it has been painted. */
	int GetNumPaintings() const { return NumPaintings; }

protected:
	void paintEvent(QPaintEvent* Event) override;
	void mousePressEvent(QMouseEvent* Event) override;
	void mouseMoveEvent(QMouseEvent* Event) override;
	void mouseReleaseEvent(QMouseEvent* Event) override;
	void wheelEvent(QWheelEvent* Event) override;
	void keyPressEvent(QKeyEvent* Event) override;
	void keyReleaseEvent(QKeyEvent* Event) override;
	void focusInEvent(QFocusEvent* Event) override;
	void focusOutEvent(QFocusEvent* Event) override;

private:
	/** The client whose view is shown, or null. */
	static FEditorViewportClient* FindClient();
	/** Moves the view along its own directions; Z is up in the world. */
	void MoveView(const FPoint3& Move);
	void SelectAt(QPointF Point, bool bToggle);
	/** The view as the editor has it now. */
	FViewProjection MakeView() const;

	FWindowContext& Context;
	FViewportScene Scene;
	FViewportKeys Keys;
	/** What was shown last, by which clicks are meant. */
	FViewProjection View;
	FVector ShownLocation;
	FRotator ShownRotation;
	bool bHasClient = false;
	FDelegateHandle RedrawHandle;
	bool bRedraw = true;
	/** The right button is held. */
	bool bFlying = false;
	QPointF PressedAt;
	QPointF DraggedTo;
	int NumPaintings = 0;
};
