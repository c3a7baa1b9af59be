// Copyright Corvane. MIT License.
using UnrealBuildTool;

public class USpout : ModuleRules
{
	public USpout(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = ModuleRules.PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
		});
	}
}
