// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/PlayScene.h"

#include "Host/Editor/SceneViews.h"

#include "Containers/Ticker.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
/** The scene moves in steps, because every one has to be painted. */
constexpr float StepSeconds = 0.1f;

/** Calls a function with the client of every game viewport that is open. */
template <typename FunctionType>
void ForEachGame(const FunctionType& Function)
{
	for (const FWorldContext& Context : GEditor->GetWorldContexts())
	{
		if (Context.GameViewport && Context.GameViewport->Viewport)
		{
			Function(*Context.GameViewport);
		}
	}
}
}

FPlayScene::FPlayScene(FSceneViews& InViews)
	: Views(InViews)
{
	UGameViewportClient::OnViewportCreated().AddRaw(this, &FPlayScene::OnGameViewportCreated);
	FEditorDelegates::EndPIE.AddRaw(this, &FPlayScene::OnEndPlay);
	Ticker = FTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateRaw(this, &FPlayScene::Tick));
}

FPlayScene::~FPlayScene()
{
	FTicker::GetCoreTicker().RemoveTicker(Ticker);
	FEditorDelegates::EndPIE.RemoveAll(this);
	UGameViewportClient::OnViewportCreated().RemoveAll(this);
}

void FPlayScene::HoldGame(const FSceneCamera& Camera)
{
	bGameHeld = true;
	ForEachGame([this, &Camera](UGameViewportClient& Client) {
		Views.GetCamera(Client) = Camera;
		Client.Viewport->InvalidateDisplay();
	});
}

void FPlayScene::ReleaseGame()
{
	bGameHeld = false;
	ForEachGame([this](UGameViewportClient& Client) { Views.GetCamera(Client) = GameSceneCamera(); });
	MoveGames();
}

void FPlayScene::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (UGameViewportClient*& Game : Games)
	{
		Collector.AddReferencedObject(Game);
	}
}

void FPlayScene::OnGameViewportCreated()
{
	if (GEditor && GEditor->GameViewport)
	{
		Games.AddUnique(GEditor->GameViewport);
	}
}

void FPlayScene::OnEndPlay(const bool)
{
	ElapsedSeconds = 0.0f;
	SceneSeconds = 0.0f;
	bGameHeld = false;
	MovePanes(0.0f, false);
}

bool FPlayScene::Tick(float DeltaSeconds)
{
	if (!GEditor || !GEditor->PlayWorld)
	{
		return true;
	}
	ElapsedSeconds += DeltaSeconds;
	// A little more, because sixtieths of a second do not add up to tenths exactly.
	const float Steps = std::floor(ElapsedSeconds / StepSeconds + 0.01f);
	if (Steps * StepSeconds != SceneSeconds)
	{
		SceneSeconds = Steps * StepSeconds;
		if (!bGameHeld)
		{
			MoveGames();
		}
		if (GEditor->IsSimulateInEditorInProgress())
		{
			MovePanes(SceneSeconds, true);
		}
	}
	return true;
}

void FPlayScene::MoveGames()
{
	ForEachGame([this](UGameViewportClient& Client) {
		Views.GetCamera(Client).Seconds = SceneSeconds;
		Client.Viewport->InvalidateDisplay();
	});
}

void FPlayScene::MovePanes(float PaneSeconds, bool bOnlySimulated)
{
	if (!StandIn::IsLevelEditorOpen())
	{
		return;
	}
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		FSceneCamera& Camera = Views.GetCamera(Pane->GetLevelViewportClient());
		if (Camera.Seconds != PaneSeconds && (!bOnlySimulated || Pane->HasPlayInEditorViewport()))
		{
			Camera.Seconds = PaneSeconds;
			Pane->GetLevelViewportClient().Invalidate();
		}
	}
}
}
