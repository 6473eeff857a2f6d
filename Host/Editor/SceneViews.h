// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Editor/MovingScenes.h"
#include "Host/Editor/PaneCamera.h"
#include "Host/Scene/SceneCamera.h"

#include <map>
#include <memory>
#include <string>

class FEditorViewportClient;
class FViewport;
class FViewportClient;
struct FKey;

// What each viewport sees of the scene.

namespace TintmillHost
{
class FChartMenu;

/** Paints the scene for all viewports while it lives, and moves the cameras of the editor's panes with the mouse. */
class FSceneViews
{
public:
	FSceneViews();
	~FSceneViews();
	FSceneViews(const FSceneViews&) = delete;
	FSceneViews& operator=(const FSceneViews&) = delete;

	/**
	 * The viewport's camera; at first the one that suits the pane's kind of view, or the game's. A pane has one for each kind, and
	 * finds them again after its layout was left and came back.
	 */
	FSceneCamera& GetCamera(FViewportClient& Client);

	/** Gives the viewport the camera that it had at first. */
	void ResetCamera(FViewportClient& Client);

	/** Lets the viewport see the chart of colors, or the scene again from where its camera was. */
	void ShowChart(FViewportClient& Client, bool bShow);

	/** Whether the viewport sees the chart. */
	bool IsChartShown(FViewportClient& Client) { return GetCamera(Client).View == ESceneView::Chart; }

	/** Has pictures follow the mouse, if need be coarsely, while a camera moves. */
	void HurryWhileMoving() { MovingScenes.Hurry(); }

private:
	bool MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Key, float Delta);
	bool PressKey(FSceneCamera& Camera, const FViewport& Viewport, const FKey& Key);

	/** By the pane's place in its layout with its kind of view, or by the client's address. */
	std::map<std::string, FSceneCamera> Cameras;

	FPaneDrag Drag;
	FMovingScenes MovingScenes;
	std::unique_ptr<FChartMenu> ChartMenu;
};
}
