// Copyright The Tintmill authors. All rights reserved.

using UnrealBuildTool;

public class TintmillEditor : ModuleRules
{
	public TintmillEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = ModuleRules.PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"Tintmill"
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"AssetRegistry",
			"AssetTools",
			"CoreUObject",
			"EditorStyle",
			"Engine",
			"InputCore",
			"LevelEditor",
			"Projects",
			"PropertyEditor",
			"RenderCore",
			"RHI",
			"Slate",
			"SlateCore",
			"ToolMenus",
			"UnrealEd"
		});
	}
}
