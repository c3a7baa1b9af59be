// Copyright Corvane. MIT License.
#include "ZAVTelemetry.h"

namespace
{
	int32 WizardEditorOpenedCount = 0;
}

void ZAVTelemetry::WizardEditorOpened()
{
	++WizardEditorOpenedCount;
}

int32 ZAVTelemetry::GetWizardEditorOpenedCount()
{
	return WizardEditorOpenedCount;
}
