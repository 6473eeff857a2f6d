// Copyright The Tintmill authors. All rights reserved.

#include "ModuleDescriptor.h"

#include "HAL/PlatformMisc.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

TEST(ModuleDescriptor, PhasesAndTypesAreReadFromTheirNames)
{
	EXPECT_EQ(ELoadingPhase::PostEngineInit, ELoadingPhase::FromString(TEXT("postengineinit")));
	EXPECT_EQ(EHostType::UncookedOnly, EHostType::FromString(TEXT("UncookedOnly")));
	EXPECT_EQ(ELoadingPhase::Max, ELoadingPhase::FromString(TEXT("Later")));
	EXPECT_EQ(EHostType::Max, EHostType::FromString(TEXT("")));
	EXPECT_EQ("PreDefault", ToStd(ELoadingPhase::ToString(ELoadingPhase::PreDefault)));
	EXPECT_EQ("Editor", ToStd(EHostType::ToString(EHostType::Editor)));
}

TEST(ModuleDescriptor, PlatformListsDecideWhereAModuleIsFor)
{
	FModuleDescriptor Module(FName(TEXT("M")), EHostType::Editor);
	EXPECT_TRUE(Module.IsCompiledInCurrentConfiguration());
	Module.WhitelistPlatforms.Add(TEXT("PS4"));
	EXPECT_FALSE(Module.IsCompiledInCurrentConfiguration());
	Module.WhitelistPlatforms.Add(FPlatformMisc::GetUBTPlatform());
	EXPECT_TRUE(Module.IsCompiledInCurrentConfiguration());
	Module.BlacklistPlatforms.Add(FPlatformMisc::GetUBTPlatform());
	EXPECT_FALSE(Module.IsCompiledInCurrentConfiguration());
}

TEST(ModuleDescriptor, ModulesOfOtherProgramsAreNotLoaded)
{
	EXPECT_FALSE(FModuleDescriptor(FName(TEXT("M")), EHostType::ServerOnly).IsLoadedInCurrentConfiguration());
	EXPECT_FALSE(FModuleDescriptor(FName(TEXT("M")), EHostType::Program).IsLoadedInCurrentConfiguration());
	EXPECT_TRUE(FModuleDescriptor(FName(TEXT("M")), EHostType::DeveloperTool).IsLoadedInCurrentConfiguration());
}
