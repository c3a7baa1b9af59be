// Copyright Corvane. MIT License.
#include <limits>

#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"

void SWidget::SWidgetConstruct(
	const ANSICHAR* InType, const TAttribute<EVisibility>& InVisibility, const TAttribute<bool>& InEnabledState)
{
	TypeOfWidget = FName(InType);
	Visibility = InVisibility;
	EnabledState = InEnabledState;
}

FReply SWidget::OnFocusReceived(const FGeometry& /*MyGeometry*/, const FFocusEvent& /*InFocusEvent*/)
{
	return FReply::Unhandled();
}

void SWidget::OnFocusLost(const FFocusEvent& /*InFocusEvent*/) {}

FReply SWidget::OnKeyChar(const FGeometry& /*MyGeometry*/, const FCharacterEvent& /*InCharacterEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyUp(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/)
{
	return FReply::Unhandled();
}

void SWidget::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/) {}

bool SWidget::SupportsKeyboardFocus() const
{
	return false;
}

bool SWidget::HasKeyboardFocus() const
{
	return FSlateApplicationBase::IsInitialized() &&
		FSlateApplicationBase::Get().GetKeyboardFocusedWidget().Get() == this;
}

void SWidget::SlatePrepass(float InLayoutScaleMultiplier)
{
	PrepassWithin(InLayoutScaleMultiplier, std::numeric_limits<float>::infinity());
}

void SWidget::PrepassWithin(float LayoutScaleMultiplier, float InWidthCap)
{
	FChildren& Children = *GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = Children.GetChildAt(Index);
		if (Child->GetVisibility() != EVisibility::Collapsed)
		{
			Child->PrepassWithin(LayoutScaleMultiplier, ComputeChildWidthCap(Index, InWidthCap));
		}
	}
	WidthCap = InWidthCap;
	DesiredSize = ComputeDesiredSize(LayoutScaleMultiplier);
}

void SWidget::ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	OnArrangeChildren(AllottedGeometry, ArrangedChildren);
}

void SWidget::SetVisibility(const TAttribute<EVisibility>& InVisibility)
{
	Visibility = InVisibility;
}

void SWidget::SetEnabled(const TAttribute<bool>& InEnabledState)
{
	EnabledState = InEnabledState;
}

void SWidget::AssignParentWidget(const TSharedRef<SWidget>& InParent)
{
	ParentWidget = InParent;
}

void SWidget::ForgetParentWidget(const SWidget& FormerParent)
{
	if (ParentWidget.Pin().Get() == &FormerParent)
	{
		ParentWidget.Reset();
	}
}

float SWidget::ComputeChildWidthCap(int32 /*ChildIndex*/, float OwnWidthCap) const
{
	return OwnWidthCap;
}
