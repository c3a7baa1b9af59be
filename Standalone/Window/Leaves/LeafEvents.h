// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Templates/SharedPointer.h"

class SWidget;

/**
 * Hands what happens to a leaf's Qt widget to the engine's application, before Qt's widget gets it. The application
 * decides: it moves the focus (so that a box commits before a button hears of its click) and presses what is pressed.
 */
class FLeafEvents : public QObject
{
public:
	/** What of the input the engine's widget gets. Focus it always gets. */
	enum EInput
	{
		None = 0,
		Pointer = 1,
		/** Enter and the space bar. */
		PressKeys = 2,
		EnterKey = 4,
		/** The arrow keys up and down, which Qt's widget then does not get. */
		ArrowKeys = 8
	};

	/** Watches from now on, as long as the Qt widget exists. */
	FLeafEvents(const TSharedRef<SWidget>& InWidget, QWidget* InWatched, int InInput);

	bool eventFilter(QObject* Object, QEvent* Event) override;

private:
	void OnPointer(const QMouseEvent& Event);
	/** @return whether Qt's widget shall not get it. */
	bool OnKey(const QKeyEvent& Event);
	void OnFocusIn(Qt::FocusReason Reason);
	void OnFocusOut(Qt::FocusReason Reason);

	TWeakPtr<SWidget> Widget;
	QWidget* Watched;
	int Input;
};
