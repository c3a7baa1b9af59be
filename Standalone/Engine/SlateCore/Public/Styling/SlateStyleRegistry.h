// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Map.h"
#include "Styling/ISlateStyle.h"

/** The style sets by name. It does not own them: a set is unregistered before it goes. */
class SLATECORE_API FSlateStyleRegistry
{
public:
	/** Fatal when a set of that name is registered. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	/** Does nothing for a name that is not registered. */
	static void UnRegisterSlateStyle(const FName StyleName);
	/** The set of that name, or null. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);

private:
	friend class FStyleInspector;

	static TMap<FName, const ISlateStyle*>& GetRegisteredStyles();
};
