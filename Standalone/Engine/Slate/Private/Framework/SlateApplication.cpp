// Copyright Corvane. MIT License.
#include <chrono>

#include "Framework/Application/SlateApplication.h"

#include "Framework/Notifications/NotificationManager.h"
#include "Widgets/SWidget.h"

namespace
{
	double GetMachineTime()
	{
		return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
	}

	bool TakesPart(const SWidget& Widget)
	{
		return Widget.GetVisibility().IsVisible() && Widget.IsEnabled();
	}

	/** Whether a widget and all above it are shown and enabled. */
	bool CanGetInput(const TSharedPtr<SWidget>& Widget)
	{
		for (TSharedPtr<SWidget> Current = Widget; Current.IsValid(); Current = Current->GetParentWidget())
		{
			if (!TakesPart(*Current))
			{
				return false;
			}
		}
		return true;
	}

	bool CanHaveFocus(const TSharedPtr<SWidget>& Widget)
	{
		return Widget.IsValid() && Widget->SupportsKeyboardFocus() && CanGetInput(Widget);
	}

	void AppendFocusableWidgets(const TSharedRef<SWidget>& Widget, TArray<TSharedRef<SWidget>>& OutWidgets)
	{
		if (!TakesPart(*Widget))
		{
			return;
		}
		if (Widget->SupportsKeyboardFocus())
		{
			OutWidgets.Add(Widget);
		}
		FChildren& Children = *Widget->GetChildren();
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			AppendFocusableWidgets(Children.GetChildAt(Index), OutWidgets);
		}
	}

	/** The widget, its parent, and so on up to the root. */
	TArray<TSharedRef<SWidget>> GetWidgetAndAncestors(const TSharedPtr<SWidget>& Widget)
	{
		TArray<TSharedRef<SWidget>> Result;
		for (TSharedPtr<SWidget> Current = Widget; Current.IsValid(); Current = Current->GetParentWidget())
		{
			Result.Add(Current.ToSharedRef());
		}
		return Result;
	}

	/** How many widgets from the path's root on get the pointer's events: those above the first disabled one. */
	int32 CountReachable(const FWidgetPath& Path)
	{
		int32 Count = 0;
		while (Count < Path.Widgets.Num() && Path.Widgets[Count].Widget->IsEnabled())
		{
			++Count;
		}
		return Count;
	}

	bool AddToPath(const TSharedRef<SWidget>& Child, FWidgetPath& Path, EVisibility VisibilityFilter)
	{
		const FArrangedWidget Parent = Path.Widgets.Last();
		FArrangedChildren Arranged(VisibilityFilter);
		Parent.Widget->ArrangeChildren(Parent.Geometry, Arranged);
		for (int32 Index = 0; Index < Arranged.Num(); ++Index)
		{
			if (Arranged[Index].Widget == Child)
			{
				Path.Widgets.AddWidget(Arranged[Index]);
				return true;
			}
		}
		return false;
	}
}

void FSlateApplication::Create()
{
	check(!IsInitialized());
	SetCurrent(MakeShared<FSlateApplication>());
	Get().StartTime = GetMachineTime();
}

void FSlateApplication::Shutdown(bool /*bShutdownPlatform*/)
{
	FSlateNotificationManager::Get().CloseAll();
	SetCurrent(nullptr);
}

bool FSlateApplication::IsInitialized()
{
	return FSlateApplicationBase::IsInitialized();
}

FSlateApplication& FSlateApplication::Get()
{
	return static_cast<FSlateApplication&>(FSlateApplicationBase::Get());
}

bool FSlateApplication::InitializeRenderer(TSharedRef<FSlateRenderer> InRenderer, bool /*bQuietMode*/)
{
	Renderer = InRenderer;
	return true;
}

void FSlateApplication::Tick(ESlateTickType /*TickType*/)
{
	if (bFollowsMachine)
	{
		CurrentTime = GetMachineTime() - StartTime;
	}
	FSlateNotificationManager::Get().Tick();
	DropLostFocus();
}

void FSlateApplication::SetCurrentTime(double Seconds)
{
	bFollowsMachine = false;
	CurrentTime = Seconds;
}

bool FSlateApplication::SetKeyboardFocus(
	const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	if (!CanHaveFocus(OptionalWidgetToFocus))
	{
		return false;
	}
	MoveFocus(OptionalWidgetToFocus, ReasonFocusIsChanging);
	return GetKeyboardFocusedWidget() == OptionalWidgetToFocus;
}

void FSlateApplication::ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging)
{
	MoveFocus(nullptr, ReasonFocusIsChanging);
}

TSharedPtr<SWidget> FSlateApplication::GetKeyboardFocusedWidget() const
{
	return FocusedWidget.Pin();
}

void FSlateApplication::MoveFocus(const TSharedPtr<SWidget>& NewFocus, EFocusCause Cause)
{
	const TSharedPtr<SWidget> OldFocus = FocusedWidget.Pin();
	if (OldFocus == NewFocus)
	{
		return;
	}
	// Moved before anybody is told: a handler that moves the focus again must not make the old widget lose it twice.
	FocusedWidget = NewFocus;
	if (OldFocus.IsValid())
	{
		OldFocus->OnFocusLost(FFocusEvent(Cause, 0));
	}
	if (NewFocus.IsValid() && FocusedWidget.Pin() == NewFocus)
	{
		NewFocus->OnFocusReceived(FGeometry(), FFocusEvent(Cause, 0));
	}
	// What the loss set off, a commit for example, may have hidden or disabled the new widget.
	DropLostFocus();
}

void FSlateApplication::DropLostFocus()
{
	const TSharedPtr<SWidget> Focused = FocusedWidget.Pin();
	if (Focused.IsValid() && !CanGetInput(Focused))
	{
		MoveFocus(nullptr, EFocusCause::OtherWidgetLostFocus);
	}
}

void FSlateApplication::MoveFocusAlongTree(bool bForward)
{
	const TSharedPtr<SWidget> Focused = FocusedWidget.Pin();
	if (!Focused.IsValid())
	{
		return;
	}
	TArray<TSharedRef<SWidget>> Focusable;
	AppendFocusableWidgets(GetWidgetAndAncestors(Focused).Last(), Focusable);
	const int32 Current = Focusable.Find(Focused.ToSharedRef());
	const int32 Next = (Current + (bForward ? 1 : Focusable.Num() - 1)) % Focusable.Num();
	MoveFocus(Focusable[Next], EFocusCause::Navigation);
}

template <typename HandlerType>
bool FSlateApplication::RouteAlongFocusPath(HandlerType Handler)
{
	DropLostFocus();
	for (const TSharedRef<SWidget>& Widget : GetWidgetAndAncestors(FocusedWidget.Pin()))
	{
		if (Handler(*Widget).IsEventHandled())
		{
			return true;
		}
	}
	return false;
}

bool FSlateApplication::ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent)
{
	return RouteAlongFocusPath(
		[&InCharacterEvent](SWidget& Widget) { return Widget.OnKeyChar(FGeometry(), InCharacterEvent); });
}

bool FSlateApplication::ProcessKeyDownEvent(const FKeyEvent& InKeyEvent)
{
	if (RouteAlongFocusPath([&InKeyEvent](SWidget& Widget) { return Widget.OnKeyDown(FGeometry(), InKeyEvent); }))
	{
		return true;
	}
	if (InKeyEvent.GetKey() != EKeys::Tab)
	{
		return false;
	}
	MoveFocusAlongTree(!InKeyEvent.IsShiftDown());
	return true;
}

bool FSlateApplication::ProcessKeyUpEvent(const FKeyEvent& InKeyEvent)
{
	return RouteAlongFocusPath([&InKeyEvent](SWidget& Widget) { return Widget.OnKeyUp(FGeometry(), InKeyEvent); });
}

bool FSlateApplication::GeneratePathToWidgetUnchecked(
	const TSharedRef<const SWidget>& InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter) const
{
	OutWidgetPath = FWidgetPath();
	const TArray<TSharedRef<SWidget>> Ancestry = GetWidgetAndAncestors(const_cast<SWidget&>(InWidget.Get()).AsShared());
	const TSharedRef<SWidget>& Root = Ancestry.Last();
	if (!EVisibility::DoesVisibilityPassFilter(Root->GetVisibility(), VisibilityFilter))
	{
		return false;
	}
	Root->SlatePrepass(1.0f);
	OutWidgetPath.Widgets.AddWidget(
		FArrangedWidget(Root, FGeometry::MakeRoot(Root->GetDesiredSize(), FSlateLayoutTransform())));
	for (int32 Index = Ancestry.Num() - 2; Index >= 0; --Index)
	{
		if (!AddToPath(Ancestry[Index], OutWidgetPath, VisibilityFilter))
		{
			OutWidgetPath = FWidgetPath();
			return false;
		}
	}
	return true;
}

FReply FSlateApplication::RoutePointerDownEvent(
	const FWidgetPath& WidgetsUnderPointer, const FPointerEvent& PointerEvent)
{
	DropLostFocus();
	FReply Reply = FReply::Unhandled();
	TSharedPtr<SWidget> NewFocus;
	for (int32 Index = CountReachable(WidgetsUnderPointer) - 1; Index >= 0; --Index)
	{
		const FArrangedWidget& Arranged = WidgetsUnderPointer.Widgets[Index];
		if (!Reply.IsEventHandled())
		{
			Reply = Arranged.Widget->OnMouseButtonDown(Arranged.Geometry, PointerEvent);
		}
		if (!NewFocus.IsValid() && Arranged.Widget->SupportsKeyboardFocus())
		{
			NewFocus = Arranged.Widget;
		}
	}
	if (Reply.GetMouseCaptor().IsValid())
	{
		MouseCaptor = Reply.GetMouseCaptor();
	}
	MoveFocus(NewFocus, EFocusCause::Mouse);
	return Reply;
}

FReply FSlateApplication::RoutePointerUpEvent(const FWidgetPath& WidgetsUnderPointer, const FPointerEvent& PointerEvent)
{
	DropLostFocus();
	const TSharedPtr<SWidget> Captor = MouseCaptor.Pin();
	MouseCaptor.Reset();
	FReply Reply = FReply::Unhandled();
	bool bReachesCaptor = !Captor.IsValid();
	for (int32 Index = CountReachable(WidgetsUnderPointer) - 1; Index >= 0 && !Reply.IsEventHandled(); --Index)
	{
		const FArrangedWidget& Arranged = WidgetsUnderPointer.Widgets[Index];
		bReachesCaptor = bReachesCaptor || Arranged.Widget == Captor;
		Reply = Arranged.Widget->OnMouseButtonUp(Arranged.Geometry, PointerEvent);
	}
	if (!bReachesCaptor)
	{
		Captor->OnMouseCaptureLost(FCaptureLostEvent{0, 0});
	}
	return Reply;
}
