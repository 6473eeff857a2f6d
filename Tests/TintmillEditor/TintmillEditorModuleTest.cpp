// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorModule.h"

#include "Support/Printers.h"
#include "Support/Text.h"
#include "TintmillEditor/ModuleFixture.h"

#include "AssetToolsModule.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "IAssetTools.h"
#include "LevelEditorViewport.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/ObjectSystem.h"
#include "StandIn/Registrations.h"
#include "Styling/SlateStyleRegistry.h"
#include "TintmillDisplayManager.h"
#include "TintmillModule.h"
#include "TintmillObject.h"
#include "ToolMenu.h"
#include "ToolMenus.h"

#include <gtest/gtest.h>

#include <algorithm>

// The module's life: what it registers and when, what it takes down, and what it leaves in place on purpose.

namespace
{
const FName OnePane(TEXT("OnePane"));
const FName ViewMenu(TEXT("LevelEditor.LevelViewportToolBar.View"));

class FTintmillEditorModuleLife : public FModuleFixture
{
protected:
	static bool Unload() { return FModuleManager::Get().UnloadModule(TEXT("TintmillEditor")); }

	static bool HasLookActions()
	{
		FAssetToolsModule* const AssetTools = FModuleManager::GetModulePtr<FAssetToolsModule>(TEXT("AssetTools"));
		return AssetTools && AssetTools->Get().GetAssetTypeActionsForClass(UTintmillObject::StaticClass()).IsValid();
	}

	static bool HasStyle() { return FSlateStyleRegistry::FindSlateStyle(TEXT("TintmillStyle")) != nullptr; }

	static bool HasMenuEntry()
	{
		UToolMenu* const Menu = UToolMenus::Get()->FindMenu(ViewMenu);
		return Menu && Menu->ContainsEntry(TEXT("TMLDisplaySubMenu"));
	}

	/** How many kinds of assets have actions, whoever they belong to. */
	static int32 CountAssetTypeActions()
	{
		int32 Count = 0;
		for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
		{
			Count += Registration.Registry == TEXT("AssetTypeActions") ? 1 : 0;
		}
		return Count;
	}

	/** Loads the module without its plug-in, and calls back each time another module has been started on the way. */
	void LoadModuleAlone(const TFunction<void(FName)>& OnModuleLoaded)
	{
		Options.bLoadPlugins = false;
		PreInit();
		const FDelegateHandle Handle =
			FModuleManager::Get().OnModulesChanged().AddLambda([&OnModuleLoaded](FName Name, EModuleChangeReason Reason) {
				if (Reason == EModuleChangeReason::ModuleLoaded)
				{
					OnModuleLoaded(Name);
				}
			});
		FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
		FModuleManager::Get().OnModulesChanged().Remove(Handle);
	}

	/** Takes the exit's steps up to the end of the object system, with AssetTools still loaded. */
	void EndObjectSystem()
	{
		EngineLoop->CloseMainFrame();
		EngineLoop->ExitEngine();
		EngineLoop->ExitSlate();
		StandIn::ShutdownObjectSystem();
	}

	/** Takes the rest of the exit's steps after EndObjectSystem. */
	void FinishExit()
	{
		EngineLoop->ExitAssetModules();
		EngineLoop->ExitApplication();
		EngineLoop->ExitModules();
		EngineLoop.reset();
	}

	static FTintmillEditorModule& GetEditorModule() { return *static_cast<FTintmillEditorModule*>(GetModule()); }

	/** The names of everything that stands under an owner's address, in alphabetical order. */
	static std::vector<std::string> RegistrationsOf(const void* Owner)
	{
		std::vector<std::string> Names;
		for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
		{
			if (Registration.Owner == Owner && Registration.Registry != TEXT("Modules"))
			{
				Names.push_back(ToStd(Registration.Name));
			}
		}
		std::sort(Names.begin(), Names.end());
		return Names;
	}
};

typedef FTintmillEditorModuleLife FTintmillEditorModuleLifeDeathTest;

TEST_F(FTintmillEditorModuleLife, IsLoadedWithThePlugInInPhaseDefault)
{
	PreInit();
	EXPECT_NE(GetModule(), nullptr);
}

TEST_F(FTintmillEditorModuleLife, StartUpWatchesNewWorlds)
{
	PreInit();
	EXPECT_TRUE(FWorldDelegates::OnPreWorldInitialization.IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, StartUpWaitsForTheEndOfTheEngineLoopsInitialization)
{
	PreInit();
	EXPECT_TRUE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, StartUpLeavesThePlayEventsAlone)
{
	PreInit();
	EXPECT_FALSE(FEditorDelegates::PreBeginPIE.IsBoundToObject(GetModule()));
	EXPECT_FALSE(FEditorDelegates::PostPIEStarted.IsBoundToObject(GetModule()));
	EXPECT_FALSE(UGameViewportClient::OnViewportCreated().IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, StartUpHappensBeforeTheEditorEngineExists)
{
	PreInit();
	EXPECT_EQ(GEditor, nullptr);
}

TEST_F(FTintmillEditorModuleLife, StartUpRegistersTheLookAssetType)
{
	PreInit();
	EXPECT_TRUE(HasLookActions());
}

TEST_F(FTintmillEditorModuleLife, StartUpRegistersTheStyle)
{
	PreInit();
	EXPECT_TRUE(HasStyle());
}

TEST_F(FTintmillEditorModuleLife, StartUpRegistersTheMenuEntry)
{
	PreInit();
	EXPECT_TRUE(HasMenuEntry());
}

TEST_F(FTintmillEditorModuleLife, AModuleObjectByItselfRegistersNothing)
{
	InitEngine();
	const FTintmillEditorModule Module;
	EXPECT_EQ(RegistrationsOf(&Module), std::vector<std::string>());
}

TEST_F(FTintmillEditorModuleLife, StartUpLoadsAssetToolsBetweenItsTwoHooks)
{
	bool bWatchesWorlds = false;
	bool bWaitsForTheEngineLoop = true;
	LoadModuleAlone([&](FName Name) {
		if (Name == FName(TEXT("AssetTools")))
		{
			bWatchesWorlds = FWorldDelegates::OnPreWorldInitialization.IsBoundToObject(GetModule());
			bWaitsForTheEngineLoop = FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(GetModule());
		}
	});
	EXPECT_TRUE(bWatchesWorlds);
	EXPECT_FALSE(bWaitsForTheEngineLoop);
}

TEST_F(FTintmillEditorModuleLife, StartUpComesToTheMenusLast)
{
	bool bEverythingElseIsThere = false;
	LoadModuleAlone([&](FName Name) {
		if (Name == FName(TEXT("ToolMenus")))
		{
			bEverythingElseIsThere =
				HasStyle() && HasLookActions() && FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(GetModule());
		}
	});
	EXPECT_TRUE(bEverythingElseIsThere);
}

TEST_F(FTintmillEditorModuleLife, StartUpDoesNotLoadTheRuntimeModule)
{
	Options.bLoadPlugins = false;
	PreInit();
	FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("Tintmill")));
}

TEST_F(FTintmillEditorModuleLife, TheRuntimeModuleIsLoadedByWhoeverNeedsItFirst)
{
	Options.bLoadPlugins = false;
	PreInit();
	const IModuleInterface* const Found = &FTintmillEditorModule::GetTintmillModule();
	EXPECT_EQ(Found, FModuleManager::Get().GetModule(TEXT("Tintmill")));
}

TEST_F(FTintmillEditorModuleLife, TheRuntimeModuleIsAskedForAnewByEveryUser)
{
	Options.bLoadPlugins = false;
	PreInit();
	FTintmillEditorModule::GetTintmillModule();
	FModuleManager::Get().UnloadModule(TEXT("Tintmill"));
	FTintmillEditorModule::GetTintmillModule();
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("Tintmill")));
}

TEST_F(FTintmillEditorModuleLife, TheEndOfInitializationBindsTheLevelViewportListEvent)
{
	InitEngine();
	EXPECT_TRUE(GEditor->OnLevelViewportClientListChanged().IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, TheEndOfInitializationLeavesTheListOfAllViewportsAlone)
{
	InitEngine();
	EXPECT_FALSE(GEditor->OnViewportClientListChanged().IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, TheEndOfInitializationBindsThePlayEvents)
{
	InitEngine();
	EXPECT_TRUE(FEditorDelegates::PreBeginPIE.IsBoundToObject(GetModule()));
	EXPECT_TRUE(FEditorDelegates::PostPIEStarted.IsBoundToObject(GetModule()));
	EXPECT_TRUE(UGameViewportClient::OnViewportCreated().IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, TheBindingToTheEndOfInitializationStaysAfterItFired)
{
	InitEngine();
	EXPECT_TRUE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadKeepsTheBindingToTheLevelViewportListEvent)
{
	InitEngine();
	const void* const Module = GetModule();
	Unload();
	EXPECT_TRUE(GEditor->OnLevelViewportClientListChanged().IsBoundToObject(Module));
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadClearsTheNeighbouringListEvent)
{
	InitEngine();
	IModuleInterface* const Module = GetModule();
	GEditor->OnViewportClientListChanged().AddRaw(Module, &IModuleInterface::PostLoadCallback);
	Unload();
	EXPECT_FALSE(GEditor->OnViewportClientListChanged().IsBoundToObject(Module));
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadTakesTheMenuEntryDown)
{
	InitEngine();
	Unload();
	EXPECT_FALSE(HasMenuEntry());
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadTakesTheStyleDown)
{
	InitEngine();
	Unload();
	EXPECT_FALSE(HasStyle());
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadTakesTheLookAssetTypeDown)
{
	InitEngine();
	Unload();
	EXPECT_FALSE(HasLookActions());
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadStopsWatchingWorlds)
{
	InitEngine();
	const void* const Module = GetModule();
	Unload();
	EXPECT_FALSE(FWorldDelegates::OnPreWorldInitialization.IsBoundToObject(Module));
}

TEST_F(FTintmillEditorModuleLife, ALiveUnloadLetsGoOfTheEngineLoop)
{
	InitEngine();
	const void* const Module = GetModule();
	Unload();
	EXPECT_FALSE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(Module));
}

TEST_F(FTintmillEditorModuleLife, WhatALiveUnloadLeavesAreTheFourDeliberateBindings)
{
	InitEngine();
	const void* const Module = GetModule();
	Unload();
	EXPECT_EQ(RegistrationsOf(Module),
		(std::vector<std::string>{"FEditorDelegates::PostPIEStarted", "FEditorDelegates::PreBeginPIE",
			"UEditorEngine::OnLevelViewportClientListChanged", "UGameViewportClient::OnViewportCreated"}));
}

TEST_F(FTintmillEditorModuleLife, AnUnloadBeforeTheEndOfInitializationLeavesNothing)
{
	PreInit();
	const void* const Module = GetModule();
	Unload();
	EXPECT_EQ(RegistrationsOf(Module), std::vector<std::string>());
}

TEST_F(FTintmillEditorModuleLife, AnUnloadBeforeTheEndOfInitializationTakesStyleAndAssetTypeDown)
{
	PreInit();
	Unload();
	EXPECT_FALSE(HasStyle());
	EXPECT_FALSE(HasLookActions());
}

TEST_F(FTintmillEditorModuleLife, AnUnloadAfterAssetToolsDoesNotLoadThemAgain)
{
	InitEngine();
	FModuleManager::Get().UnloadModule(TEXT("AssetTools"));
	Unload();
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("AssetTools")));
}

TEST_F(FTintmillEditorModuleLife, AnUnloadAfterAssetToolsStillTakesTheStyleDown)
{
	InitEngine();
	FModuleManager::Get().UnloadModule(TEXT("AssetTools"));
	Unload();
	EXPECT_FALSE(HasStyle());
}

TEST_F(FTintmillEditorModuleLife, TheModuleCanBeLoadedAgainAfterAnUnload)
{
	PreInit();
	Unload();
	FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
	EXPECT_TRUE(HasMenuEntry());
	EXPECT_TRUE(HasStyle());
	EXPECT_TRUE(HasLookActions());
}

TEST_F(FTintmillEditorModuleLife, TheEnginesExitTakesTheStyleDownThoughTheObjectSystemIsGone)
{
	StartEditor(OnePane);
	ExitEditor();
	EXPECT_FALSE(HasStyle());
}

TEST_F(FTintmillEditorModuleLife, TheEnginesExitFindsAssetToolsUnloaded)
{
	StartEditor(OnePane);
	EngineLoop->CloseMainFrame();
	EngineLoop->ExitEngine();
	EngineLoop->ExitSlate();
	EngineLoop->ExitAssetModules();
	EngineLoop->ExitApplication();
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("AssetTools")));
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("TintmillEditor")));
	EngineLoop->ExitModules();
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("TintmillEditor")));
	EngineLoop.reset();
}

TEST_F(FTintmillEditorModuleLife, AShutDownAfterTheObjectSystemTakesTheLookAssetTypeDownIfAssetToolsAreThere)
{
	StartEditor(OnePane);
	EndObjectSystem();
	const int32 Before = CountAssetTypeActions();
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"), true);
	EXPECT_EQ(CountAssetTypeActions(), Before - 1);
	FinishExit();
}

TEST_F(FTintmillEditorModuleLife, AShutDownAfterTheObjectSystemTakesTheStyleDown)
{
	StartEditor(OnePane);
	EndObjectSystem();
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"), true);
	EXPECT_FALSE(HasStyle());
	FinishExit();
}

TEST_F(FTintmillEditorModuleLife, AShutDownWithoutAStartUpDoesNothing)
{
	InitEngine();
	FTintmillEditorModule Stranger;
	Stranger.ShutdownModule();
	EXPECT_TRUE(HasMenuEntry());
	EXPECT_TRUE(HasStyle());
	EXPECT_TRUE(HasLookActions());
}

TEST_F(FTintmillEditorModuleLife, DetachingTakesTheMenuEntryDownAndKeepsTheRest)
{
	InitEngine();
	GetEditorModule().DetachFromEditor();
	EXPECT_FALSE(HasMenuEntry());
	EXPECT_TRUE(HasStyle());
	EXPECT_TRUE(HasLookActions());
	EXPECT_TRUE(FWorldDelegates::OnPreWorldInitialization.IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, DetachingClearsTheNeighbouringListEvent)
{
	InitEngine();
	GEditor->OnViewportClientListChanged().AddRaw(GetModule(), &IModuleInterface::PostLoadCallback);
	GetEditorModule().DetachFromEditor();
	EXPECT_FALSE(GEditor->OnViewportClientListChanged().IsBoundToObject(GetModule()));
}

TEST_F(FTintmillEditorModuleLife, DetachingKeepsEveryHook)
{
	InitEngine();
	GetEditorModule().DetachFromEditor();
	EXPECT_EQ(RegistrationsOf(GetModule()),
		(std::vector<std::string>{"FCoreDelegates::OnFEngineLoopInitComplete", "FEditorDelegates::PostPIEStarted",
			"FEditorDelegates::PreBeginPIE", "FWorldDelegates::OnPreWorldInitialization", "UEditorEngine::OnLevelViewportClientListChanged",
			"UGameViewportClient::OnViewportCreated", "UWorld::OnFeatureLevelChanged"}));
}

TEST_F(FTintmillEditorModuleLife, DetachingBeforeTheEndOfInitializationTakesTheMenuEntryDown)
{
	PreInit();
	GetEditorModule().DetachFromEditor();
	EXPECT_FALSE(HasMenuEntry());
}

TEST_F(FTintmillEditorModuleLife, DetachingAfterTheObjectSystemDoesNothing)
{
	StartEditor(OnePane);
	EndObjectSystem();
	const std::vector<std::string> Before = RegistrationsOf(GetModule());
	GetEditorModule().DetachFromEditor();
	EXPECT_EQ(RegistrationsOf(GetModule()), Before);
	FinishExit();
}

TEST_F(FTintmillEditorModuleLife, AShutDownAfterDetachingFindsNothingLeftToTakeDownThere)
{
	InitEngine();
	const void* const Module = GetModule();
	GetEditorModule().DetachFromEditor();
	Unload();
	EXPECT_FALSE(FWorldDelegates::OnPreWorldInitialization.IsBoundToObject(Module));
}

TEST_F(FTintmillEditorModuleLife, SupportsReloadingAndAutomaticShutDownAndIsNoGameModule)
{
	PreInit();
	EXPECT_TRUE(GetModule()->SupportsDynamicReloading());
	EXPECT_TRUE(GetModule()->SupportsAutomaticShutdown());
	EXPECT_FALSE(GetModule()->IsGameModule());
}

TEST_F(FTintmillEditorModuleLife, ItsOwnLogCategoryStaysSilent)
{
	StartEditor(OnePane);
	StandIn::SetViewportLayout(TEXT("FourPanes2x2"));
	ExitEditor();
	EXPECT_TRUE(Log.InCategory(TEXT("LogTintmillEditor")).empty());
}

TEST_F(FTintmillEditorModuleLife, ItsOwnLogCategoryLogsByDefault)
{
	EXPECT_EQ(LogTintmillEditor.GetVerbosity(), ELogVerbosity::Log);
}

TEST_F(FTintmillEditorModuleLife, ItsOwnLogCategoryIsCompiledInWhole)
{
	EXPECT_EQ(LogTintmillEditor.GetCompileTimeVerbosity(), ELogVerbosity::All);
}

TEST_F(FTintmillEditorModuleLifeDeathTest, AViewportOutsideTheEditorsListIsFatalOnLine317)
{
	StartEditor(OnePane);
	EXPECT_DEATH(
		{
			// While play has the pane, the active viewport is the game's, whose client is no level viewport client.
			FRequestPlaySessionParams Params;
			Params.DestinationSlateViewport = TWeakPtr<IAssetViewport>(GetPane(0));
			GEditor->RequestPlaySession(Params);
			EngineLoop->Tick();
			UToolMenu* const Menu = UToolMenus::Get()->GenerateMenu(ViewMenu, FToolMenuContext());
			UToolMenus::Get()->GenerateSubMenu(Menu, TEXT("TMLDisplaySubMenu"));
		},
		"Assertion failed: AssociatedClient && \\*AssociatedClient \\[File:.*TintmillEditorModule\\.cpp\\] \\[Line: 317\\]");
}
}
