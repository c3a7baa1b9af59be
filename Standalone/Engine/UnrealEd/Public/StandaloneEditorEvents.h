// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"

class UObject;

/** The stand-alone editor's own: tells what the editor was asked to do where there is nothing else to see of it. */
struct UNREALED_API FStandaloneEditorEvents
{
	DECLARE_MULTICAST_DELEGATE_TwoParams(FContentSync, const TArray<UObject*>&, bool)
		DECLARE_MULTICAST_DELEGATE_OneParam(FRedraw, bool)

		/** The content browser should show these objects; the flag asks for it to come to the front. */
		static FContentSync ContentSync;

	/** All viewports should be drawn anew; the flag includes what can be clicked at. */
	static FRedraw Redraw;
};
