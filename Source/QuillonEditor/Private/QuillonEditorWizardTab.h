// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/** The ids under which the tab manager knows the module's tabs. */
namespace QuillonEditorTabs
{
	// Not an FName: that would write into the name table before main.
	constexpr const TCHAR* CineStreamWizard = TEXT("CineStreamWizard");
}
