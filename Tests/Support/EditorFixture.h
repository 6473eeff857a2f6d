// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Editor.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/PlaySession.h"
#include "StandIn/ScenePainter.h"
#include "Support/EventLog.h"
#include <gtest/gtest.h>
#include <string>

/** Returns a name as text that a test can compare and print. */
inline std::string ToText(const FName& Name)
{
	return std::string(TCHAR_TO_UTF8(*Name.ToString()));
}

/** Returns a string as text that a test can compare and print. */
inline std::string ToText(const FString& String)
{
	return std::string(TCHAR_TO_UTF8(*String));
}

/** An editor without plug-ins and without application, up to the end of Init; no panes. */
class FEngineFixture : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		Options.bLoadPlugins = false;
		Options.bSlate = false;
		Options.MaximizedPane = NAME_None;
		ChooseOptions();
		StartEngine();
	}

	virtual void TearDown() override
	{
		StandIn::SetPlayCheck(TFunction<bool()>());
		StandIn::SetGameInstanceCheck(TFunction<bool(int32)>());
		StandIn::SetScenePainter(StandIn::FScenePainter());
		if (!bExited)
		{
			Loop.Exit();
		}
	}

	/** Changes Options before the engine is brought up. */
	virtual void ChooseOptions() {}

	/** Brings the engine up. */
	void StartEngine()
	{
		Loop.PreInit(Options);
		Loop.Init();
	}

	/** Asks for play in a pane, or in a window without one, and runs the tick that starts it. */
	void Play(const TSharedPtr<SLevelViewport>& Pane, EPlaySessionWorldType WorldType = EPlaySessionWorldType::PlayInEditor)
	{
		FRequestPlaySessionParams Params;
		Params.WorldType = WorldType;
		if (Pane.IsValid())
		{
			Params.DestinationSlateViewport = TWeakPtr<IAssetViewport>(Pane);
		}
		GEditor->RequestPlaySession(Params);
		Loop.Tick();
	}

	/** Asks for the end of play and runs the tick that ends it. */
	void EndPlay()
	{
		GEditor->RequestEndPlayMap();
		Loop.Tick();
	}

	StandIn::FEngineLoopOptions Options;
	StandIn::FEngineLoop Loop;
	bool bExited = false;
};

/** An editor with the four panes of the layout FourPanes2x2 side by side. */
class FEditorFixture : public FEngineFixture
{
protected:
	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		Loop.InitEditor();
	}

	/** Returns pane number 0 to 3 of the first tab. */
	static TSharedPtr<SLevelViewport> GetPane(int32 Index) { return StandIn::GetPanes()[Index]; }
};
