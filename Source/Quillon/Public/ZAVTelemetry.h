// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/**
 * Records how the plugin's tools are used.
 *
 * REFERENCE MODULE: counts, sends nothing anywhere.
 */
class QUILLON_API ZAVTelemetry
{
public:
	/** The setup wizard was opened. */
	static void WizardEditorOpened();

	/** Only in the reference module: how often WizardEditorOpened was called. */
	static int32 GetWizardEditorOpenedCount();
};
