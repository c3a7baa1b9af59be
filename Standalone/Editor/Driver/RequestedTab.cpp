// Copyright Corvane. MIT License.
#include "Driver/RequestedTab.h"

#include "EngineText.h"
#include "ErrorText.h"
#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"

FName FRequestedTab::GetId(const FRequest& Request)
{
	const FString Id = Request.GetText("tab");
	// A longer one is a fatal check in the name table.
	if (Id.Len() >= NAME_SIZE)
	{
		throw FRequestError("no tab has so long a name as " + FErrorText::Quote(FEngineText::ForDisplay(Id)));
	}
	return FName(*Id);
}

TSharedRef<SDockTab> FRequestedTab::GetOpen(const FRequest& Request)
{
	const FName Id = GetId(Request);
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(Id));
	if (!Tab.IsValid())
	{
		throw FRequestError("the tab " + FErrorText::Quote(Request.GetUtf8("tab")) + " is not open");
	}
	return Tab.ToSharedRef();
}

TSharedRef<SWidget> FRequestedTab::GetContent(const FRequest& Request)
{
	return GetOpen(Request)->GetContent();
}
