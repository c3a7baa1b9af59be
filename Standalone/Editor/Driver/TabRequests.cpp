// Copyright Corvane. MIT License.
#include "Driver/TabRequests.h"

#include "Driver/AnswerText.h"
#include "Driver/RequestedTab.h"
#include "EngineText.h"
#include "ErrorText.h"
#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
	FAnswer Describe(const FGlobalTabmanager::FOpenTab& Open)
	{
		FAnswer Answer;
		Answer["id"] = FEngineText::ForDisplay(Open.Tab->GetLayoutIdentifier().TabType);
		FAnswerText::Add(Answer, "label", Open.Spawner->GetDisplayName());
		FAnswerText::Add(Answer, "tooltip", Open.Spawner->GetTooltipText());
		Answer["icon"] = FAnswerText::Icon(Open.Spawner->GetIcon());
		Answer["front"] = Open.Tab->IsForeground();
		Answer["autoMenu"] = Open.Spawner->ShouldAutoGenerateMenuEntry();
		return Answer;
	}

	FAnswer RunTabs(FDriverSession& /*Session*/, const FRequest& /*Request*/)
	{
		FAnswer Tabs = FAnswer::array();
		for (const FGlobalTabmanager::FOpenTab& Open : FGlobalTabmanager::Get()->GetOpenTabs())
		{
			Tabs.push_back(Describe(Open));
		}
		return {{"tabs", std::move(Tabs)}};
	}

	FAnswer RunInvokeTab(FDriverSession& /*Session*/, const FRequest& Request)
	{
		const FName Id = FRequestedTab::GetId(Request);
		if (!FGlobalTabmanager::Get()->TryInvokeTab(FTabId(Id)).IsValid())
		{
			throw FRequestError("nothing opens a tab " + FErrorText::Quote(Request.GetUtf8("tab")));
		}
		return FAnswer::object();
	}

	FAnswer RunCloseTab(FDriverSession& /*Session*/, const FRequest& Request)
	{
		FRequestedTab::GetOpen(Request)->RequestCloseTab();
		return FAnswer::object();
	}
}

std::vector<FRequestDefinition> FTabRequests::GetAll()
{
	const FParameter Tab = {"tab", EParameterType::Text, true};
	return {{"tabs", {}, &RunTabs}, {"invoke-tab", {Tab}, &RunInvokeTab}, {"close-tab", {Tab}, &RunCloseTab}};
}
