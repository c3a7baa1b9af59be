// Copyright Corvane. MIT License.
#pragma once

#include "Driver/Request.h"

#include "CoreMinimal.h"

class SDockTab;
class SWidget;

/** The tab that a request names in its parameter "tab". Names of tabs go without case, as the engine's names do. */
class FRequestedTab
{
public:
	/** @throws FRequestError if no name can be as long. */
	static FName GetId(const FRequest& Request);

	/** @throws FRequestError if the tab is not open. In front or behind makes no difference. */
	static TSharedRef<SDockTab> GetOpen(const FRequest& Request);

	/** The same tab's content. */
	static TSharedRef<SWidget> GetContent(const FRequest& Request);
};
