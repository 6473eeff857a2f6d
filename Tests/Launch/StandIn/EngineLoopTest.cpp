// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/EngineLoop.h"

#include "Engine/World.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "Interfaces/IPluginManager.h"
#include "Support/EditorFixture.h"
#include "Support/TemporaryProject.h"
#include "UObject/UObjectBase.h"

namespace
{
FEventLog ModuleLog;

/** Notes what its module sees when it starts and stops. */
class FWatchingModule : public IModuleInterface
{
public:
	virtual void StartupModule() override { ModuleLog.Add(GEditor == nullptr ? "Startup:NoEditor" : "Startup:Editor"); }
	virtual void ShutdownModule() override
	{
		ModuleLog.Add("Shutdown");
		ModuleLog.Add(UObjectInitialized() ? "Objects" : "NoObjects");
		ModuleLog.Add(GEditor != nullptr ? "Editor" : "NoEditor");
		ModuleLog.Add(FModuleManager::Get().IsModuleLoaded("AssetTools") ? "AssetTools" : "NoAssetTools");
		ModuleLog.Add(FModuleManager::Get().IsModuleLoaded("AssetRegistry") ? "AssetRegistry" : "NoAssetRegistry");
	}
};

/** Says which phase it was loaded in by what is there. */
class FLateModule : public IModuleInterface
{
public:
	virtual void StartupModule() override
	{
		ModuleLog.Add(GEditor == nullptr ? "Late:NoEditor" : "Late:Editor");
		FCoreDelegates::OnPostEngineInit.AddRaw(this, &FLateModule::OnPostEngineInit);
	}
	virtual void ShutdownModule() override { FCoreDelegates::OnPostEngineInit.RemoveAll(this); }
	void OnPostEngineInit() { ModuleLog.Add("Late:PostEngineInit"); }
};

FStaticallyLinkedModuleRegistrant<FLateModule> LateModuleRegistrant(TEXT("EngineLoopTestLate"));
FStaticallyLinkedModuleRegistrant<FWatchingModule> WatchingModuleRegistrant(TEXT("EngineLoopTestWatcher"));
}

/** A life of the editor, step by step, with the events of the application noted. */
class FEngineLoopTest : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		ModuleLog.Clear();
		Options.bLoadPlugins = false;
		Options.bSlate = false;
		Bind(FCoreDelegates::OnPostEngineInit, "PostEngineInit");
		Bind(FCoreDelegates::OnFEngineLoopInitComplete, "InitComplete");
		Bind(FCoreDelegates::OnEnginePreExit, "EnginePreExit");
		Bind(FCoreDelegates::OnPreExit, "PreExit");
		Bind(FCoreDelegates::OnExit, "Exit");
	}

	virtual void TearDown() override
	{
		FCoreDelegates::OnPostEngineInit.Remove(Handles[0]);
		FCoreDelegates::OnFEngineLoopInitComplete.Remove(Handles[1]);
		FCoreDelegates::OnEnginePreExit.Remove(Handles[2]);
		FCoreDelegates::OnPreExit.Remove(Handles[3]);
		FCoreDelegates::OnExit.Remove(Handles[4]);
	}

	void Bind(FSimpleMulticastDelegate& Event, const std::string& Name)
	{
		Handles.push_back(Event.AddLambda([this, Name]() {
			Log.Add(Name + ":" + (GEditor != nullptr ? "Editor" : "NoEditor") + "," + (UObjectInitialized() ? "Objects" : "NoObjects") + ","
				+ (GEditor != nullptr ? std::to_string(GEditor->GetAllViewportClients().Num()) : "0"));
		}));
	}

	/** Brings the editor up with a module that watches, loaded in the Default phase. */
	void Start()
	{
		Loop.PreInit(Options);
		FModuleManager::Get().LoadModuleChecked("EngineLoopTestWatcher");
		Loop.Init();
		Loop.InitEditor();
	}

	FEventLog Log;
	StandIn::FEngineLoopOptions Options;
	StandIn::FEngineLoop Loop;

private:
	std::vector<FDelegateHandle> Handles;
};

TEST_F(FEngineLoopTest, HasNoEditorInTheDefaultPhase)
{
	Start();
	EXPECT_EQ(ModuleLog.Get(), "Startup:NoEditor");
	Loop.Exit();
}

TEST_F(FEngineLoopTest, HasObjectsInTheDefaultPhase)
{
	Loop.PreInit(Options);
	EXPECT_TRUE(UObjectInitialized());
	Loop.Init();
	Loop.Exit();
}

TEST_F(FEngineLoopTest, TellsOfTheInitialisedEngineBeforeThereAreViewports)
{
	Start();
	EXPECT_EQ(Log.Get(), "PostEngineInit:Editor,Objects,0 InitComplete:Editor,Objects,0");
	Loop.Exit();
}

TEST_F(FEngineLoopTest, OpensFourPanes)
{
	Start();
	EXPECT_EQ(GEditor->GetLevelViewportClients().Num(), 4);
	Loop.Exit();
}

TEST_F(FEngineLoopTest, LetsOnePaneFillTheLevelEditor)
{
	Start();
	EXPECT_TRUE(StandIn::FindPane(FName(TEXT("FourPanes2x2.Viewport 1.Viewport1")))->IsMaximized());
	Loop.Exit();
}

TEST_F(FEngineLoopTest, DestroysThePanesWithTheEditorAlive)
{
	Start();
	int NumEvents = 0;
	GEditor->OnLevelViewportClientListChanged().AddLambda([&NumEvents]() { NumEvents += GEditor != nullptr; });
	Loop.CloseMainFrame();
	EXPECT_EQ(NumEvents, 4);
	Loop.Exit();
}

TEST_F(FEngineLoopTest, ExitsInTheEnginesOrder)
{
	Start();
	Log.Clear();
	Loop.Exit();
	EXPECT_EQ(Log.Get(), "EnginePreExit:Editor,Objects,0 PreExit:Editor,Objects,0 Exit:Editor,Objects,0");
}

TEST_F(FEngineLoopTest, ShutsModulesDownLastOfAll)
{
	Start();
	ModuleLog.Clear();
	Loop.Exit();
	EXPECT_EQ(ModuleLog.Get(), "Shutdown NoObjects NoEditor NoAssetTools NoAssetRegistry");
}

TEST_F(FEngineLoopTest, HasEverythingAliveWhenAModuleIsUnloadedInMidSession)
{
	Start();
	ModuleLog.Clear();
	FModuleManager::Get().UnloadModule("EngineLoopTestWatcher");
	EXPECT_EQ(ModuleLog.Get(), "Shutdown Objects Editor AssetTools AssetRegistry");
	Loop.Exit();
}

TEST_F(FEngineLoopTest, UnloadsAssetToolsBeforeAssetRegistry)
{
	FEventLog Unloaded;
	Start();
	const FDelegateHandle Handle = FModuleManager::Get().OnModulesChanged().AddLambda([&Unloaded](FName Name, EModuleChangeReason Reason) {
		if (Reason == EModuleChangeReason::ModuleUnloaded)
		{
			Unloaded.Add(ToText(Name));
		}
	});
	Loop.CloseMainFrame();
	Loop.ExitEngine();
	Loop.ExitSlate();
	Loop.ExitAssetModules();
	FModuleManager::Get().OnModulesChanged().Remove(Handle);
	EXPECT_EQ(Unloaded.Get(), "AssetTools AssetRegistry");
	Loop.ExitApplication();
	Loop.ExitModules();
}

TEST_F(FEngineLoopTest, HasNoEditorAfterTheApplicationHasExited)
{
	Start();
	Loop.Exit();
	EXPECT_EQ(GEditor, nullptr);
}

TEST_F(FEngineLoopTest, CleansTheEditedWorldUpBeforeTheApplicationExits)
{
	Start();
	Loop.CloseMainFrame();
	Loop.ExitEngine();
	EXPECT_EQ(GWorld.GetReference(), nullptr);
	Loop.ExitSlate();
	Loop.ExitAssetModules();
	Loop.ExitApplication();
	Loop.ExitModules();
}

TEST_F(FEngineLoopTest, ExitsWithoutEverHavingHadPanes)
{
	Loop.PreInit(Options);
	Loop.Init();
	Loop.Exit();
	EXPECT_EQ(GEditor, nullptr);
}

TEST_F(FEngineLoopTest, DoesNotCompleteItsInitialisationAsACommandlet)
{
	Options.bCommandlet = true;
	Loop.PreInit(Options);
	Loop.Init();
	EXPECT_EQ(Log.Count("InitComplete:Editor,Objects,0"), 0);
	Loop.Exit();
}

TEST_F(FEngineLoopTest, SaysThatACommandletRuns)
{
	Options.bCommandlet = true;
	Loop.PreInit(Options);
	EXPECT_TRUE(IsRunningCommandlet());
	Loop.Init();
	Loop.Exit();
}

TEST_F(FEngineLoopTest, DiesWhenACommandletOpensTheEditor)
{
	Options.bCommandlet = true;
	EXPECT_DEATH(
		{
			Loop.PreInit(Options);
			Loop.Init();
			Loop.InitEditor();
		},
		"Assertion failed: Stage == EStage::Initialized && !Options.bCommandlet");
}

TEST_F(FEngineLoopTest, DiesWhenAStepIsLeftOut)
{
	EXPECT_DEATH(Loop.Init(), "Assertion failed: Stage == EStage::PreInitialized");
}

TEST_F(FEngineLoopTest, StartsAgainInTheSameProcess)
{
	Start();
	Loop.Exit();
	StandIn::FEngineLoop Second;
	Second.PreInit(Options);
	Second.Init();
	Second.InitEditor();
	EXPECT_EQ(GEditor->GetLevelViewportClients().Num(), 4);
	Second.Exit();
}

TEST_F(FEngineLoopTest, CountsFrames)
{
	Start();
	const uint64 Before = GFrameCounter;
	Loop.Tick();
	EXPECT_EQ(GFrameCounter, Before + 1);
	Loop.Exit();
}

TEST_F(FEngineLoopTest, LoadsPluginModulesInTheirPhases)
{
	const FTemporaryProject Project;
	Project.Write("Test.uproject", "{ \"FileVersion\": 3, \"Plugins\": [ { \"Name\": \"Tintmill\", \"Enabled\": false } ] }");
	Project.Write("Plugins/Phased/Phased.uplugin",
		"{ \"FileVersion\": 3, \"EnabledByDefault\": true, \"Modules\": ["
		"{ \"Name\": \"EngineLoopTestLate\", \"Type\": \"Editor\", \"LoadingPhase\": \"PostEngineInit\" },"
		"{ \"Name\": \"EngineLoopTestWatcher\", \"Type\": \"Editor\", \"LoadingPhase\": \"Default\" } ] }");
	IPluginManager::Get().RefreshPluginsList();
	Options.bLoadPlugins = true;
	Loop.PreInit(Options);
	Loop.Init();
	const std::string Seen = ModuleLog.Get();
	Loop.Exit();
	FPaths::SetProjectFilePath(FString());
	IPluginManager::Get().RefreshPluginsList();
	EXPECT_EQ(Seen, "Startup:NoEditor Late:Editor");
}
