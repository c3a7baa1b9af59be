// Copyright Corvane. MIT License.
#pragma once

#include <nlohmann/json.hpp>

#include "CoreMinimal.h"

struct FDetailsRow;

/** What a user does to a row of the details panel. Each throws FRequestError with nothing changed. */
class FDetailsEdits
{
public:
	/** Enters a text, number or object (by path or name; "" or "None" for none), or sets a check box. */
	static void Set(const FDetailsRow& Row, const nlohmann::json& Value);

	/** Picks from a combo's list as it stands: the option with that text, or of that index. */
	static void Pick(const FDetailsRow& Row, const FString& Option);
	static void Pick(const FDetailsRow& Row, int32 Option);

	/** Presses the check box if it does not show the state, and once more if it then shows the other one. */
	static void Tick(const FDetailsRow& Row, bool bChecked);
};
