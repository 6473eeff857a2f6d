// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UnrealEngine.h"

// Not in the engine under this name: the editor's start, frames and exit, in the engine's order, each step callable alone.
// A whole life is PreInit, Init, InitEditor, Tick ..., CloseMainFrame, Exit; Exit takes the five steps listed below it.
// A step out of order is fatal.

namespace StandIn
{
/** How the editor starts. */
struct FEngineLoopOptions
{
	/** Runs without the editor's user interface: InitEditor, and the event at the end of Init, do not happen. */
	bool bCommandlet = false;

	/** Loads the modules of the plug-ins that are on, by phase. */
	bool bLoadPlugins = true;

	/** Brings the application of the user interface up and down with the engine. */
	bool bSlate = true;

	/** The long package name of the map to start with; an empty untitled map without it. */
	FString StartupMap;

	/** The layout of the level editor's panes. */
	FName Layout = FName(TEXT("FourPanes2x2"));

	/** The pane that fills the level editor at first, such as Viewport1; None for all panes side by side. */
	FName MaximizedPane = FName(TEXT("Viewport1"));
};

/** The editor's start, frames and exit. */
class LAUNCH_API FEngineLoop : public IEngineLoop
{
public:
	FEngineLoop();
	virtual ~FEngineLoop();
	FEngineLoop(const FEngineLoop&) = delete;
	FEngineLoop& operator=(const FEngineLoop&) = delete;

	/** Brings the object system up and loads the modules of the phases up to PostDefault; there is no engine object yet. */
	void PreInit(const FEngineLoopOptions& InOptions);

	/** Makes the engine object and loads the rest; ends with OnFEngineLoopInitComplete, when no pane exists. */
	virtual int32 Init() override;

	/** Opens the startup map, then the level editor with its panes. */
	void InitEditor();

	/** Runs one frame that lasts DeltaSeconds. */
	void TickFrame(float DeltaSeconds);

	/** Runs one frame of a sixtieth of a second. */
	virtual void Tick() override { TickFrame(1.0f / 60.0f); }

	/** Ends play, closes asset editors and destroys the panes, with the engine object alive; asks the program to end. */
	void CloseMainFrame();

	/** Takes all steps of the exit: ExitEngine, ExitSlate, ExitAssetModules, ExitApplication, ExitModules. */
	void Exit();

	/** Fires OnEnginePreExit and has the engine object let go of its worlds. */
	void ExitEngine();

	/** Shuts the user interface down, and what is left of panes with it. */
	void ExitSlate();

	/** Unloads AssetTools, then AssetRegistry. */
	void ExitAssetModules();

	/** Fires OnPreExit and OnExit and tears the object system down; GEditor is null afterwards. */
	void ExitApplication();

	/** Unloads all modules, last started first. */
	void ExitModules();

	virtual void ClearPendingCleanupObjects() override {}

private:
	/** How far the life has come. */
	enum class EStage : uint8
	{
		Fresh,
		PreInitialized,
		Initialized,
		Running,
		Closed,
		EngineExited,
		SlateExited,
		AssetModulesExited,
		ApplicationExited,
		Over
	};

	FEngineLoopOptions Options;
	EStage Stage;
};
}
