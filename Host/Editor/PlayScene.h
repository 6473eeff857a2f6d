// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Host/Scene/SceneCamera.h"
#include "UObject/GCObject.h"

class UGameViewportClient;

// What one sees of play: the game has a view of its own, and in it the figures move.

namespace TintmillHost
{
class FSceneViews;

/**
 * Moves the scene while play runs, by the editor's frames and no other clock, so that the same frames give the same pictures.
 * Looks go by the address of a viewport's client and are never taken from a game's; so the clients of all games are kept, or
 * a game from a pane without a look could find that of an earlier game.
 */
class FPlayScene : public FGCObject
{
public:
	/** Listens to play; the views must outlive the object. */
	explicit FPlayScene(FSceneViews& InViews);
	virtual ~FPlayScene() override;
	FPlayScene(const FPlayScene&) = delete;
	FPlayScene& operator=(const FPlayScene&) = delete;

	/** Shows the game from another camera, and still, until play ends or ReleaseGame is called. */
	void HoldGame(const FSceneCamera& Camera);

	/** Gives the game its own view back, at the time that play has come to. */
	void ReleaseGame();

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;

private:
	void OnGameViewportCreated();
	void OnEndPlay(const bool bIsSimulating);
	bool Tick(float DeltaSeconds);
	void MoveGames();
	void MovePanes(float PaneSeconds, bool bOnlySimulated);

	FSceneViews& Views;
	FDelegateHandle Ticker;
	TArray<UGameViewportClient*> Games;

	/** How long play has run, and the time that the scene shows. */
	float ElapsedSeconds = 0.0f;
	float SceneSeconds = 0.0f;

	bool bGameHeld = false;
};
}
