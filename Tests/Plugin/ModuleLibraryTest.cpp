// Copyright The Tintmill authors. All rights reserved.

#include "Support/DeathText.h"
#include "Support/TestFolder.h"
#include "Support/Text.h"

#include "AssetToolsModule.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "HAL/PlatformProcess.h"
#include "IAssetTools.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/ModuleHooks.h"
#include "StandIn/PlaySession.h"
#include "StandIn/Registrations.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenu.h"
#include "ToolMenus.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

// The module as the shared library that the editor loads: loaded, unloaded and loaded again in one process.

namespace
{
const FName ModuleName(TEXT("TintmillEditor"));

class ModuleLibrary : public testing::Test
{
protected:
	ModuleLibrary()
	{
		FPaths::SetProjectFilePath(Project.Path("Test.uproject"));
		delete GConfig;
		GConfig = nullptr;
		EngineLoop.PreInit(StandIn::FEngineLoopOptions());
		EngineLoop.Init();
	}

	virtual ~ModuleLibrary() override
	{
		const void* const Module = FModuleManager::Get().GetModule(ModuleName);
		EngineLoop.InitEditor();
		EngineLoop.Exit();
		RemoveDeliberateLeftovers(Module);
	}

	/** Unloads the module with the editor up. */
	void Unload()
	{
		const void* const Module = FModuleManager::Get().GetModule(ModuleName);
		const FDelegateHandle Handle = StandIn::OnModuleBinaryUnloading().AddLambda([this, Module](FName) {
			Leftovers = RegistrationsOf(Module);
			RemoveDeliberateLeftovers(Module);
		});
		FModuleManager::Get().UnloadModule(ModuleName);
		StandIn::OnModuleBinaryUnloading().Remove(Handle);
	}

	/** What the module leaves points into a library that is about to be unmapped, as in the engine; so it comes off from the
	 * engine's side, while its code is still there. */
	static void RemoveDeliberateLeftovers(const void* Module)
	{
		FEditorDelegates::PreBeginPIE.RemoveAll(Module);
		FEditorDelegates::PostPIEStarted.RemoveAll(Module);
		UGameViewportClient::OnViewportCreated().RemoveAll(Module);
		if (GEditor)
		{
			GEditor->OnLevelViewportClientListChanged().RemoveAll(Module);
		}
	}

	/** The names of everything that stands under an owner's address, in alphabetical order. */
	static std::vector<std::string> RegistrationsOf(const void* Owner)
	{
		std::vector<std::string> Names;
		for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
		{
			if (Registration.Owner == Owner)
			{
				Names.push_back(ToStd(Registration.Name));
			}
		}
		std::sort(Names.begin(), Names.end());
		return Names;
	}

	static bool Load() { return FModuleManager::Get().LoadModule(ModuleName) != nullptr; }

	static UClass* FindSettingsClass() { return FindObject<UClass>(nullptr, TEXT("/Script/TintmillEditor.TintmillLevelViewportSettings")); }

	FTestFolder Project;
	StandIn::FEngineLoop EngineLoop;
	std::vector<std::string> Leftovers;
};

typedef ModuleLibrary ModuleLibraryDeathTest;

TEST_F(ModuleLibrary, IsMappedByThePlugIn)
{
	EXPECT_TRUE(StandIn::IsModuleBinaryMapped(ModuleName));
}

TEST_F(ModuleLibrary, ItsClassesAreThereWhileItIsLoaded)
{
	EXPECT_NE(FindSettingsClass(), nullptr);
}

TEST_F(ModuleLibrary, IsUnmappedByAnUnload)
{
	Unload();
	EXPECT_FALSE(StandIn::IsModuleBinaryMapped(ModuleName));
}

TEST_F(ModuleLibrary, ItsClassesGoWithIt)
{
	Unload();
	EXPECT_EQ(FindSettingsClass(), nullptr);
}

TEST_F(ModuleLibrary, WhatItLeavesAreTheFourDeliberateBindings)
{
	Unload();
	EXPECT_EQ(Leftovers,
		(std::vector<std::string>{"FEditorDelegates::PostPIEStarted", "FEditorDelegates::PreBeginPIE",
			"UEditorEngine::OnLevelViewportClientListChanged", "UGameViewportClient::OnViewportCreated"}));
}

TEST_F(ModuleLibrary, CanBeLoadedAgainTenTimes)
{
	for (int Time = 0; Time < 10; ++Time)
	{
		Unload();
		ASSERT_TRUE(Load()) << Time;
	}
	EXPECT_NE(FindSettingsClass(), nullptr);
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle(TEXT("TintmillStyle")), nullptr);
}

TEST_F(ModuleLibraryDeathTest, AMissingRuntimeModuleIsFatalAndNamed)
{
	EXPECT_DEATH(
		{
			FModuleManager::Get().UnloadModule(TEXT("Tintmill"));
			StandIn::RemoveBinariesDirectory(IPluginManager::Get().FindPlugin(TEXT("Tintmill"))->GetBaseDir() / TEXT("Binaries")
				/ FPlatformProcess::GetBinariesSubdirectory());
			StandIn::BroadcastLevelViewportClientListChanged();
		},
		"Assertion failed: Module \\[File:.*\\] \\[Line: " DEATH_NUMBER "\\] \nTintmill\n");
}

TEST_F(ModuleLibrary, SharesTheEditorEngineWithTheProgram)
{
	EXPECT_TRUE(GEditor->OnLevelViewportClientListChanged().IsBoundToObject(FModuleManager::Get().GetModule(ModuleName)));
}

TEST_F(ModuleLibrary, SharesTheNameTableWithTheProgram)
{
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle(FName(TEXT("TintmillStyle"), FNAME_Find)), nullptr);
}
}
