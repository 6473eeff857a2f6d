// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/SceneViews.h"

#include "Host/Scene/ScenePainter.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "StandIn/ScenePainter.h"

namespace TintmillHost
{
namespace
{
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
}

FSceneViews::~FSceneViews()
{
	StandIn::SetScenePainter(StandIn::FScenePainter());
}

FSceneCamera& FSceneViews::GetCamera(FViewportClient& Client)
{
	const auto Found = Cameras.find(&Client);
	return Found != Cameras.end() ? Found->second : Cameras.emplace(&Client, MakeCamera(Client)).first->second;
}
}
