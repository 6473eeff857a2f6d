// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FEditorViewportClient;
class FSceneViewport;
class FViewport;
class SWidget;
class UGameViewportClient;

// A pane that shows a world and in which play can happen. Immersive mode is left out.

/** A pane that shows a world and in which play can happen. */
class IAssetViewport
{
public:
	virtual ~IAssetViewport() {}

	/** Shows a game viewport in place of the editor's own. */
	virtual void StartPlayInEditorSession(UGameViewportClient* PlayClient, const bool bInSimulateInEditor) = 0;

	/** Shows the editor's own viewport again and lets go of the game's. */
	virtual void EndPlayInEditorSession() = 0;

	/** Shows the editor's own viewport while the game's goes on unseen. */
	virtual void SwapViewportsForSimulateInEditor() = 0;

	/** Shows the game's viewport again. */
	virtual void SwapViewportsForPlayInEditor() = 0;

	/** Returns the pane's editor client. */
	virtual FEditorViewportClient& GetAssetViewportClient() = 0;

	/** Returns the viewport that is shown: the editor's, or the game's while it is played in the pane. */
	virtual FViewport* GetActiveViewport() = 0;

	/** Returns the viewport that is shown, as a shared object. */
	virtual TSharedPtr<FSceneViewport> GetSharedActiveViewport() const = 0;

	/** Tells whether a game viewport lives in the pane, seen or not. */
	virtual bool HasPlayInEditorViewport() const = 0;

	/** Tells whether a game viewport is shown. */
	virtual bool IsPlayInEditorViewportActive() const = 0;

	/** Tells whether the pane hides what only an editor shows. */
	virtual bool IsInGameView() const = 0;

	/** Lays a widget over the picture. */
	virtual void AddOverlayWidget(TSharedRef<SWidget> OverlaidWidget) = 0;

	/** Takes a widget off the picture. */
	virtual void RemoveOverlayWidget(TSharedRef<SWidget> OverlaidWidget) = 0;

	/** Returns the pane's widget. */
	virtual TSharedRef<const SWidget> AsWidget() const = 0;

	/** Returns the pane's widget. */
	virtual TSharedRef<SWidget> AsWidget() = 0;
};
