// Copyright Corvane. MIT License.
#include "Tests/AutomationEditorCommon.h"

#include "Editor.h"

UWorld* FAutomationEditorCommonUtils::CreateNewMap()
{
	return GEditor->NewMap();
}
