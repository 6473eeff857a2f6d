// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/SceneViews.h"

#include "Host/Scene/ScenePainter.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "StandIn/CameraMover.h"
#include "StandIn/ScenePainter.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
/** Degrees that the camera turns for a pixel that the mouse moves. */
constexpr float OrbitDegrees = 0.35f;

/** How much nearer a notch of the wheel, and a pixel of a drag, brings the camera. */
constexpr float NotchFactor = 0.88f;
constexpr float DragFactor = 0.994f;

FSceneCamera MakeCamera(const FViewportClient& Client)
{
	// Only pointers are compared: the client may be one of the game, which is no editor client.
	for (FLevelEditorViewportClient* const LevelClient : GEditor->GetLevelViewportClients())
	{
		if (static_cast<const FViewportClient*>(LevelClient) != &Client)
		{
			continue;
		}
		switch (LevelClient->GetViewportType())
		{
		case LVT_OrthoYZ:
			return DefaultSceneCamera(0);
		case LVT_OrthoXZ:
			return DefaultSceneCamera(2);
		case LVT_OrthoXY:
			return DefaultSceneCamera(3);
		default:
			return DefaultSceneCamera(1);
		}
	}
	return GameSceneCamera();
}
}

FSceneViews::FSceneViews()
{
	StandIn::SetScenePainter(
		[this](FViewportClient& Client, const FIntPoint& Size, FColor* Pixels) { PaintScene(GetCamera(Client), Size, Pixels); });
	StandIn::SetCameraMover([this](FEditorViewportClient& Client, FViewport& Viewport, const FKey& Axis, float Delta) {
		return MoveCamera(Client, Viewport, Axis, Delta);
	});
}

FSceneViews::~FSceneViews()
{
	StandIn::SetCameraMover(StandIn::FCameraMover());
	StandIn::SetScenePainter(StandIn::FScenePainter());
}

FSceneCamera& FSceneViews::GetCamera(FViewportClient& Client)
{
	const auto Found = Cameras.find(&Client);
	return Found != Cameras.end() ? Found->second : Cameras.emplace(&Client, MakeCamera(Client)).first->second;
}

bool FSceneViews::MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Axis, float Delta)
{
	FSceneCamera& Camera = GetCamera(Client);
	const bool bAcross = Axis == EKeys::MouseX;
	if (Axis == EKeys::MouseWheelAxis)
	{
		ZoomSceneCamera(Camera, std::pow(NotchFactor, Delta));
		return true;
	}
	const bool bLeft = Viewport.KeyState(EKeys::LeftMouseButton);
	const bool bRight = Viewport.KeyState(EKeys::RightMouseButton);
	const bool bMiddle = Viewport.KeyState(EKeys::MiddleMouseButton);
	if (bLeft && bRight)
	{
		ZoomSceneCamera(Camera, std::pow(DragFactor, bAcross ? Delta : Delta * 0.5f));
	}
	else if (bMiddle || Camera.View != ESceneView::Perspective)
	{
		const float Share = Delta / static_cast<float>(Viewport.GetSizeXY().X);
		PanSceneCamera(Camera, bAcross ? Share : 0.0f, bAcross ? 0.0f : -Share);
	}
	else
	{
		// The scene follows the mouse as if it were held.
		OrbitSceneCamera(Camera, bAcross ? -Delta * OrbitDegrees : 0.0f, bAcross ? 0.0f : -Delta * OrbitDegrees);
	}
	return bLeft || bRight || bMiddle;
}
}
