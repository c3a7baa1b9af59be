// Copyright Corvane. MIT License.
using UnrealBuildTool;

public class QuillonEditor : ModuleRules
{
	public QuillonEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = ModuleRules.PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Engine",
			"Slate",
			"SlateCore",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"InputCore",
			"Projects",
			"EditorStyle",
			"ToolMenus",
			"UnrealEd",
			"AssetTools",
			"AssetRegistry",
			"PropertyEditor",
			"PlacementMode",
			"Quillon",
			"USpout",
		});
	}
}
