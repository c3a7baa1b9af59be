// Copyright Corvane. MIT License.
#include "Driver/WidgetRequests.h"

#include "Driver/RequestedTab.h"
#include "Driver/WidgetDescription.h"
#include "EngineText.h"
#include "ErrorText.h"
#include "Framework/Application/SlateApplication.h"
#include "StrictJson.h"
#include "WidgetFinder.h"
#include "Widgets/SWidget.h"

namespace
{
	FAnswer RunWidgets(FDriverSession& /*Session*/, const FRequest& Request)
	{
		return {{"tree", FWidgetDescription::Describe(FRequestedTab::GetContent(Request))}};
	}

	bool DisplaysText(const SWidget& Widget, const FString& Wanted)
	{
		const FText* Text = FWidgetDescription::FindText(Widget);
		return Text && Text->ToString().Equals(Wanted);
	}

	TSharedRef<SWidget> FindShown(const FRequest& Request)
	{
		const bool bByType = Request.Has("type");
		if (bByType == Request.Has("text"))
		{
			throw FRequestError("either \"type\" or \"text\" is wanted");
		}
		const FString Wanted = Request.GetText(bByType ? "type" : "text");
		const int32 Index = Request.Has("index") ? Request.GetIndex("index") : 0;
		int32 Count = 0;
		for (const FWidgetFinder::FShown& Shown : FWidgetFinder(FRequestedTab::GetContent(Request)).GetShown())
		{
			const bool bFits =
				bByType ? Shown.Widget->GetTypeAsString().Equals(Wanted) : DisplaysText(*Shown.Widget, Wanted);
			if (bFits && Count++ == Index)
			{
				return Shown.Widget;
			}
		}
		throw FRequestError("index " + std::to_string(Index) + ": the tab shows " + std::to_string(Count) + " of " +
			(bByType ? "type " : "text ") + FErrorText::Quote(FEngineText::ForDisplay(Wanted)));
	}

	FAnswer RunGeometry(FDriverSession& /*Session*/, const FRequest& Request)
	{
		const TSharedRef<SWidget> Widget = FindShown(Request);
		FWidgetPath Path;
		if (!FSlateApplication::Get().GeneratePathToWidgetUnchecked(Widget, Path))
		{
			throw FRequestError("the widget has no place in the tab");
		}
		// The tab is the path's root and its content fills it.
		const FGeometry& Geometry = Path.Widgets.Last().Geometry;
		return {{"x", FStrictJson::Number(Geometry.GetAbsolutePosition().X)},
			{"y", FStrictJson::Number(Geometry.GetAbsolutePosition().Y)},
			{"width", FStrictJson::Number(Geometry.GetLocalSize().X)},
			{"height", FStrictJson::Number(Geometry.GetLocalSize().Y)}};
	}
}

std::vector<FRequestDefinition> FWidgetRequests::GetAll()
{
	return {{"widgets", {{"tab", EParameterType::Text, true}}, &RunWidgets}};
}

std::vector<FRequestDefinition> FWidgetRequests::GetGeometry()
{
	return {{"geometry",
		{{"tab", EParameterType::Text, true}, {"type", EParameterType::Text, false},
			{"text", EParameterType::Text, false}, {"index", EParameterType::Index, false}},
		&RunGeometry}};
}
