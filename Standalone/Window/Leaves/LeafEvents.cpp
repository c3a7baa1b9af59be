// Copyright Corvane. MIT License.
#include "Leaves/LeafEvents.h"

#include "FocusSync.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/WidgetPath.h"
#include "Widgets/SWidget.h"

namespace
{
	FModifierKeysState GetModifiers(Qt::KeyboardModifiers Modifiers)
	{
		return FModifierKeysState(Modifiers.testFlag(Qt::ShiftModifier), false, Modifiers.testFlag(Qt::ControlModifier),
			false, Modifiers.testFlag(Qt::AltModifier), false, false, false, false);
	}

	EFocusCause GetCause(Qt::FocusReason Reason)
	{
		switch (Reason)
		{
			case Qt::MouseFocusReason:
				return EFocusCause::Mouse;
			case Qt::TabFocusReason:
			case Qt::BacktabFocusReason:
			case Qt::ShortcutFocusReason:
				return EFocusCause::Navigation;
			default:
				return EFocusCause::SetDirectly;
		}
	}

	/** @return an invalid key for one that the engine's widgets make nothing of. */
	FKey GetKey(int QtKey)
	{
		switch (QtKey)
		{
			case Qt::Key_Return:
			case Qt::Key_Enter:
				return EKeys::Enter;
			case Qt::Key_Space:
				return EKeys::SpaceBar;
			case Qt::Key_Up:
				return EKeys::Up;
			case Qt::Key_Down:
				return EKeys::Down;
			default:
				return FKey();
		}
	}
}

FLeafEvents::FLeafEvents(const TSharedRef<SWidget>& InWidget, QWidget* InWatched, int InInput)
	: QObject(InWatched), Widget(InWidget), Watched(InWatched), Input(InInput)
{
	InWatched->installEventFilter(this);
}

bool FLeafEvents::eventFilter(QObject* Object, QEvent* Event)
{
	if (!FSlateApplication::IsInitialized() || !Widget.IsValid())
	{
		return QObject::eventFilter(Object, Event);
	}
	switch (Event->type())
	{
		case QEvent::MouseButtonPress:
		case QEvent::MouseButtonDblClick:
		case QEvent::MouseButtonRelease:
			OnPointer(*static_cast<QMouseEvent*>(Event));
			return false;
		case QEvent::KeyPress:
		case QEvent::KeyRelease:
			return OnKey(*static_cast<QKeyEvent*>(Event));
		case QEvent::FocusIn:
			OnFocusIn(static_cast<QFocusEvent*>(Event)->reason());
			return false;
		case QEvent::FocusOut:
			OnFocusOut(static_cast<QFocusEvent*>(Event)->reason());
			return false;
		default:
			return false;
	}
}

void FLeafEvents::OnPointer(const QMouseEvent& Event)
{
	const TSharedRef<SWidget> Target = Widget.Pin().ToSharedRef();
	FSlateApplication& Application = FSlateApplication::Get();
	if (Event.button() != Qt::LeftButton || !(Input & Pointer))
	{
		// The press still moves the focus; Qt's own move comes too late for a box that commits.
		if (Event.type() != QEvent::MouseButtonRelease)
		{
			Application.SetKeyboardFocus(Target, EFocusCause::Mouse);
		}
		return;
	}
	const bool bDown = Event.type() != QEvent::MouseButtonRelease;
	FWidgetPath Path;
	// A release beside the widget goes to nobody, which ends the press without a click.
	if (bDown || Watched->rect().contains(Event.position().toPoint()))
	{
		Application.GeneratePathToWidgetUnchecked(Target, Path);
	}
	const FVector2D Position(static_cast<float>(Event.position().x()), static_cast<float>(Event.position().y()));
	TSet<FKey> Pressed;
	if (bDown)
	{
		Pressed.Add(EKeys::LeftMouseButton);
	}
	const FPointerEvent PointerEvent(
		0, Position, Position, Pressed, EKeys::LeftMouseButton, 0.0f, GetModifiers(Event.modifiers()));
	bDown ? Application.RoutePointerDownEvent(Path, PointerEvent) : Application.RoutePointerUpEvent(Path, PointerEvent);
}

bool FLeafEvents::OnKey(const QKeyEvent& Event)
{
	const FKey Key = GetKey(Event.key());
	const bool bArrow = Key == EKeys::Up || Key == EKeys::Down;
	const bool bEnter = Key == EKeys::Enter;
	const bool bWanted = (bArrow && (Input & ArrowKeys) && !(Event.modifiers() & Qt::AltModifier)) ||
		(bEnter && (Input & (EnterKey | PressKeys))) || (Key == EKeys::SpaceBar && (Input & PressKeys));
	if (!bWanted)
	{
		return false;
	}
	const bool bPress = Event.type() == QEvent::KeyPress;
	// A button that is held down is pressed once; who steps through a list goes on.
	if (Event.isAutoRepeat() && !(bArrow && bPress))
	{
		return true;
	}
	const FKeyEvent KeyEvent(Key, GetModifiers(Event.modifiers()), 0, Event.isAutoRepeat(), 0, 0);
	FSlateApplication& Application = FSlateApplication::Get();
	if (bPress)
	{
		// Keys follow the focus, and here it is: the application may have been told of another one since. The press
		// may give it up, and the release must not take it back.
		Application.SetKeyboardFocus(Widget.Pin(), EFocusCause::SetDirectly);
	}
	bPress ? Application.ProcessKeyDownEvent(KeyEvent) : Application.ProcessKeyUpEvent(KeyEvent);
	return bArrow || bEnter;
}

void FLeafEvents::OnFocusIn(Qt::FocusReason Reason)
{
	// Nothing has moved when only the window or a menu came to the front, or gave way again.
	if (!FFocusSync::IsFromEngine() && Reason != Qt::ActiveWindowFocusReason && Reason != Qt::PopupFocusReason &&
		Reason != Qt::MenuBarFocusReason)
	{
		FSlateApplication::Get().SetKeyboardFocus(Widget.Pin(), GetCause(Reason));
	}
}

void FLeafEvents::OnFocusOut(Qt::FocusReason Reason)
{
	if (FFocusSync::IsFromEngine() || Reason == Qt::ActiveWindowFocusReason || Reason == Qt::PopupFocusReason ||
		Reason == Qt::MenuBarFocusReason)
	{
		return;
	}
	FSlateApplication& Application = FSlateApplication::Get();
	if (Application.GetKeyboardFocusedWidget() == Widget.Pin())
	{
		const EFocusCause Cause = GetCause(Reason);
		Application.ClearKeyboardFocus(Cause == EFocusCause::SetDirectly ? EFocusCause::Cleared : Cause);
	}
}
