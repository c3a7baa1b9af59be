// Copyright Corvane. MIT License.
#include "Misc/AutomationTest.h"

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, CoreTestSpecs)

DEFINE_SPEC(
	FBridgedSpec, "Bridge.Passing spec", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)

void FBridgedSpec::Define()
{
	Describe("A group",
		[this]()
		{
			It("should pass, whatever!", [this]() { TestTrue(TEXT("Truth"), true); });
			It("should pass -- whatever?", [this]() { AddInfo(TEXT("A line of information")); });
		});
}
