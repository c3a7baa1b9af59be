// Copyright Corvane. MIT License.
#include "Widgets/Docking/SDockTab.h"

#include "Framework/Application/SlateApplication.h"
#include "Math/UnrealMathUtility.h"

namespace
{
	const FVector2D TabSize(420.0f, 800.0f);
}

void SDockTab::Construct(const FArguments& InArgs)
{
	TabRole = InArgs._TabRole;
	SetContent(InArgs._Content.Widget);
}

void SDockTab::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

TSharedRef<SWidget> SDockTab::GetContent()
{
	return ChildSlot.GetWidget();
}

bool SDockTab::RequestCloseTab()
{
	// The manager's reference may be the last one.
	const TSharedRef<SDockTab> Self = SharedThis(this);
	SetVisibility(EVisibility::Collapsed);
	if (FSlateApplication::IsInitialized())
	{
		// A box that is being typed into commits while what listens to it is still there.
		FSlateApplication::Get().Tick();
	}
	FGlobalTabmanager::Get()->CloseTab(*this);
	return true;
}

bool SDockTab::IsForeground() const
{
	return FGlobalTabmanager::Get()->GetForegroundTab().Get() == this;
}

FVector2D SDockTab::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return TabSize;
}

float SDockTab::ComputeChildWidthCap(int32 /*ChildIndex*/, float OwnWidthCap) const
{
	return FMath::Min(OwnWidthCap, TabSize.X);
}
