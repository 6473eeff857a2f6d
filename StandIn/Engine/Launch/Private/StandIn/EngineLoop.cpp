// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/EngineLoop.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Containers/Ticker.h"
#include "CoreGlobals.h"
#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "FileHelpers.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/ObjectSystem.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/Package.h"
#include "UnrealEdGlobals.h"

StandIn::FEngineLoop::FEngineLoop()
	: Stage(EStage::Fresh)
{}

StandIn::FEngineLoop::~FEngineLoop() {}

void StandIn::FEngineLoop::PreInit(const FEngineLoopOptions& InOptions)
{
	check(Stage == EStage::Fresh);
	Options = InOptions;
	GIsEditor = true;
	PRIVATE_GIsRunningCommandlet = Options.bCommandlet;
	if (GConfig == nullptr)
	{
		FConfigCacheIni::InitializeConfigSystem();
	}
	const auto LoadPhase = [this](ELoadingPhase::Type Phase) {
		if (Options.bLoadPlugins)
		{
			IPluginManager::Get().LoadModulesForEnabledPlugins(Phase);
		}
	};
	LoadPhase(ELoadingPhase::EarliestPossible);
	LoadPhase(ELoadingPhase::PostConfigInit);
	StartObjectSystem();
	if (Options.bSlate && !Options.bCommandlet && !FSlateApplication::IsInitialized())
	{
		FSlateApplication::Create();
	}
	LoadPhase(ELoadingPhase::PostSplashScreen);
	LoadPhase(ELoadingPhase::PreEarlyLoadingScreen);
	LoadPhase(ELoadingPhase::PreLoadingScreen);
	LoadPhase(ELoadingPhase::PreDefault);
	LoadPhase(ELoadingPhase::Default);
	LoadPhase(ELoadingPhase::PostDefault);
	Stage = EStage::PreInitialized;
}

int32 StandIn::FEngineLoop::Init()
{
	check(Stage == EStage::PreInitialized);
	GUnrealEd = NewObject<UUnrealEdEngine>(GetTransientPackage());
	GEngine = GEditor = GUnrealEd;
	GEngine->AddToRoot();
	GEngine->Init(this);
	IAssetRegistry& AssetRegistry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get();
	if (!Options.bCommandlet)
	{
		// The editor looks for assets when it starts; later questions find the answer ready.
		AssetRegistry.SearchAllAssets(true);
	}
	FModuleManager::Get().LoadModuleChecked("AssetTools");
	FModuleManager::Get().LoadModuleChecked("LevelEditor");

	FCoreDelegates::OnPostEngineInit.Broadcast();
	if (Options.bLoadPlugins)
	{
		IPluginManager::Get().LoadModulesForEnabledPlugins(ELoadingPhase::PostEngineInit);
	}
	FCoreDelegates::OnAllModuleLoadingPhasesComplete.Broadcast();

	GEngine->Start();
	GIsRunning = true;
	if (!Options.bCommandlet)
	{
		FCoreDelegates::OnFEngineLoopInitComplete.Broadcast();
	}
	Stage = EStage::Initialized;
	return 0;
}

void StandIn::FEngineLoop::InitEditor()
{
	check(Stage == EStage::Initialized && !Options.bCommandlet);
	if (!Options.StartupMap.IsEmpty())
	{
		FEditorFileUtils::LoadMap(Options.StartupMap);
	}
	OpenLevelEditor(Options.Layout, Options.MaximizedPane);
	Stage = EStage::Running;
}

void StandIn::FEngineLoop::TickFrame(float DeltaSeconds)
{
	check(Stage == EStage::Initialized || Stage == EStage::Running);
	FCoreDelegates::OnBeginFrame.Broadcast();
	GEngine->Tick(DeltaSeconds, false);
	if (Options.bSlate && FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().Tick(DeltaSeconds);
	}
	FTicker::GetCoreTicker().Tick(DeltaSeconds);
	FCoreDelegates::OnEndFrame.Broadcast();
	++GFrameCounter;
	++GFrameNumber;
}

void StandIn::FEngineLoop::CloseMainFrame()
{
	check(Stage == EStage::Running);
	GEditor->EndPlayMap();
	GEditor->GetEditorSubsystem<UAssetEditorSubsystem>()->CloseAllAssetEditors();
	if (IsLevelEditorOpen())
	{
		CloseLevelEditor();
	}
	RequestEngineExit(TEXT("The main frame was closed"));
	Stage = EStage::Closed;
}

void StandIn::FEngineLoop::Exit()
{
	if (Stage == EStage::Running)
	{
		CloseMainFrame();
	}
	ExitEngine();
	ExitSlate();
	ExitAssetModules();
	ExitApplication();
	ExitModules();
}

void StandIn::FEngineLoop::ExitEngine()
{
	check(Stage == EStage::Initialized || Stage == EStage::Running || Stage == EStage::Closed);
	FCoreDelegates::OnEnginePreExit.Broadcast();
	GEngine->PreExit();
	Stage = EStage::EngineExited;
}

void StandIn::FEngineLoop::ExitSlate()
{
	check(Stage == EStage::EngineExited);
	if (IsLevelEditorOpen())
	{
		CloseLevelEditor();
	}
	if (Options.bSlate && FSlateApplication::IsInitialized())
	{
		FSlateApplication::Shutdown();
	}
	Stage = EStage::SlateExited;
}

void StandIn::FEngineLoop::ExitAssetModules()
{
	check(Stage == EStage::SlateExited);
	FModuleManager::Get().UnloadModule("AssetTools", true);
	FModuleManager::Get().UnloadModule("AssetRegistry", true);
	Stage = EStage::AssetModulesExited;
}

void StandIn::FEngineLoop::ExitApplication()
{
	check(Stage == EStage::AssetModulesExited);
	GIsRunning = false;
	FCoreDelegates::OnPreExit.Broadcast();
	FCoreDelegates::OnExit.Broadcast();
	ShutdownObjectSystem();
	check(GEditor == nullptr && GEngine == nullptr);
	Stage = EStage::ApplicationExited;
}

void StandIn::FEngineLoop::ExitModules()
{
	check(Stage == EStage::ApplicationExited);
	FModuleManager::Get().UnloadModulesAtShutdown();
	PRIVATE_GIsRunningCommandlet = false;
	Stage = EStage::Over;
}
