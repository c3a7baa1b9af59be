// Copyright Corvane. MIT License.
#pragma once

#include "Application/SlateApplicationBase.h"
#include "Containers/Array.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/WidgetPath.h"

/** What a tick works on. */
enum class ESlateTickType : uint8
{
	All,
};

/**
 * The application holds the keyboard focus and brings input to the widgets. Any widget without parent is a root here
 * and is laid out in its desired size; open tabs are such roots.
 *
 * Events go to the lowest widget first and from there up until one handles them. A widget that is not shown, or is
 * disabled, or stands within one that is, gets none and has no focus: what becomes so loses the focus before the next
 * event or tick.
 */
class SLATE_API FSlateApplication : public FSlateApplicationBase
{
public:
	static void Create();
	/** Forgets focus and renderer without telling the widgets. No notification stays on screen. */
	static void Shutdown(bool bShutdownPlatform = true);
	static bool IsInitialized();
	/** Fatal while there is no application. */
	static FSlateApplication& Get();
	bool InitializeRenderer(TSharedRef<FSlateRenderer> InRenderer, bool bQuietMode = false);

	/** Moves the time on, takes expired notifications off the screen and the focus from what may not have it. */
	void Tick(ESlateTickType TickType = ESlateTickType::All);

	/** As of the last tick, in seconds since the application was made. */
	double GetCurrentTime() const { return CurrentTime; }
	/** From now on nothing but this moves the time. The real engine always goes by the machine's clock. */
	void SetCurrentTime(double Seconds);

	/** @return whether the widget has the focus now; one that cannot have it changes nothing. */
	bool SetKeyboardFocus(
		const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	void ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const override;

	/** To the focused widget. @return whether one handled it. */
	bool ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent);
	/** As above; the tab key, if nobody handles it, moves the focus on in the order of the tree, with shift backwards.
	 */
	bool ProcessKeyDownEvent(const FKeyEvent& InKeyEvent);
	bool ProcessKeyUpEvent(const FKeyEvent& InKeyEvent);

	/** Lays the widget's root out anew. @return false, the path empty, when the widget or one above it is not shown. */
	bool GeneratePathToWidgetUnchecked(const TSharedRef<const SWidget>& InWidget, FWidgetPath& OutWidgetPath,
		EVisibility VisibilityFilter = EVisibility::Visible) const;

	/** After the widgets had the event, the focus moves to the lowest widget of the path that takes it, or away from
	 * all. */
	FReply RoutePointerDownEvent(const FWidgetPath& WidgetsUnderPointer, const FPointerEvent& PointerEvent);
	FReply RoutePointerUpEvent(const FWidgetPath& WidgetsUnderPointer, const FPointerEvent& PointerEvent);

private:
	/** Takes the focus from a widget that may not have it any more. */
	void DropLostFocus();
	void MoveFocus(const TSharedPtr<SWidget>& NewFocus, EFocusCause Cause);
	void MoveFocusAlongTree(bool bForward);
	/** Offers an event to the focused widget and then to those above it. */
	template <typename HandlerType>
	bool RouteAlongFocusPath(HandlerType Handler);

	TWeakPtr<SWidget> FocusedWidget;
	TWeakPtr<SWidget> MouseCaptor;
	double StartTime = 0.0;
	double CurrentTime = 0.0;
	bool bFollowsMachine = true;
};
