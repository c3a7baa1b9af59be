// Copyright Corvane. MIT License.
#include "Misc/AutomationTest.h"

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, CoreTestFailingSpecs)

DEFINE_SPEC(
	FFailingSpec, "Bridge.Failing spec", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

void FFailingSpec::Define()
{
	It("should fail",
		[this]()
		{
			TestEqual(TEXT("Number"), 1, 2);
			AddError(TEXT("And goes on"));
		});
}
