// Copyright Corvane. MIT License.
#pragma once

class UWorld;

/** What automation tests of editor modules have in common. */
class UNREALED_API FAutomationEditorCommonUtils
{
public:
	/** Opens an empty level in place of the open one. */
	static UWorld* CreateNewMap();
};
