// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneCamera.h"

#include <map>

class FEditorViewportClient;
class FViewport;
class FViewportClient;
struct FKey;

// What each viewport sees of the scene.

namespace TintmillHost
{
/** Paints the scene for all viewports while it lives; every viewport keeps its own camera, which the mouse moves in the editor's. */
class FSceneViews
{
public:
	FSceneViews();
	~FSceneViews();
	FSceneViews(const FSceneViews&) = delete;
	FSceneViews& operator=(const FSceneViews&) = delete;

	/** The viewport's camera; at first the one that suits the pane's kind of view, or the game's. */
	FSceneCamera& GetCamera(FViewportClient& Client);

	/** Gives the viewport the camera that it had at first. */
	void ResetCamera(FViewportClient& Client) { Cameras.erase(&Client); }

private:
	bool MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Axis, float Delta);

	std::map<const FViewportClient*, FSceneCamera> Cameras;
};
}
