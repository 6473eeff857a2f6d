// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/SceneViews.h"

#include "Host/Editor/ChartMenu.h"
#include "Host/Program/Strings.h"
#include "Host/Scene/ScenePainter.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "InputCoreTypes.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/CameraMover.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/ScenePainter.h"

#include <cstdint>

namespace TintmillHost
{
namespace
{
/** The client as one of the level editor, or null. Only pointers are compared: it may be one of the game, which is no editor client. */
FLevelEditorViewportClient* FindLevelClient(const FViewportClient& Client)
{
	for (FLevelEditorViewportClient* const LevelClient : GEditor->GetLevelViewportClients())
	{
		if (static_cast<const FViewportClient*>(LevelClient) == &Client)
		{
			return LevelClient;
		}
	}
	return nullptr;
}

FSceneCamera MakeCamera(const FLevelEditorViewportClient* Client)
{
	if (Client == nullptr)
	{
		return GameSceneCamera();
	}
	switch (Client->GetViewportType())
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

/** What a client's camera is kept under. */
std::string GetCameraKey(const FViewportClient& Client, const FLevelEditorViewportClient* LevelClient)
{
	std::string Key = std::to_string(reinterpret_cast<std::uintptr_t>(&Client));
	if (LevelClient != nullptr && StandIn::IsLevelEditorOpen())
	{
		for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
		{
			if (&Pane->GetLevelViewportClient() == LevelClient)
			{
				Key = ToUtf8(Pane->GetConfigKey().ToString());
			}
		}
	}
	return LevelClient != nullptr ? Key + ":" + std::to_string(static_cast<int>(LevelClient->GetViewportType())) : Key;
}
}

FSceneViews::FSceneViews()
	: ChartMenu(std::make_unique<FChartMenu>(*this))
{
	StandIn::SetScenePainter([this](FViewportClient& Client, const FIntPoint& Size, FColor* Pixels) {
		MovingScenes.Paint(Client, GetCamera(Client), Size, Pixels);
	});
	StandIn::SetCameraMover([this](FEditorViewportClient& Client, FViewport& Viewport, const FKey& Key, float Delta) {
		const bool bMoved = MoveCamera(Client, Viewport, Key, Delta);
		if (bMoved)
		{
			MovingScenes.NoteMove(Client);
		}
		return bMoved;
	});
}

FSceneViews::~FSceneViews()
{
	StandIn::SetCameraMover(StandIn::FCameraMover());
	StandIn::SetScenePainter(StandIn::FScenePainter());
}

FSceneCamera& FSceneViews::GetCamera(FViewportClient& Client)
{
	const FLevelEditorViewportClient* const LevelClient = FindLevelClient(Client);
	const std::string Key = GetCameraKey(Client, LevelClient);
	const auto Found = Cameras.find(Key);
	return Found != Cameras.end() ? Found->second : Cameras.emplace(Key, MakeCamera(LevelClient)).first->second;
}

void FSceneViews::ResetCamera(FViewportClient& Client)
{
	Cameras.erase(GetCameraKey(Client, FindLevelClient(Client)));
}

void FSceneViews::ShowChart(FViewportClient& Client, bool bShow)
{
	// Everything but the view stays as it is, so that the scene comes back as it was.
	GetCamera(Client).View = bShow ? ESceneView::Chart : MakeCamera(FindLevelClient(Client)).View;
}

bool FSceneViews::MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Key, float Delta)
{
	FSceneCamera& Camera = GetCamera(Client);
	if (Key == EKeys::MouseWheelAxis)
	{
		return ZoomPaneCamera(Camera, Delta);
	}
	if (Key != EKeys::MouseX && Key != EKeys::MouseY)
	{
		return PressKey(Camera, Viewport, Key);
	}
	const FVector2D Pixels = Drag.Take(Key == EKeys::MouseX ? FVector2D(Delta, 0.0f) : FVector2D(0.0f, Delta));
	return Pixels != FVector2D(0.0f, 0.0f) && DragPaneCamera(Camera, GetPaneButtons(Viewport), Pixels, Viewport.GetSizeXY().X);
}

bool FSceneViews::PressKey(FSceneCamera& Camera, const FViewport& Viewport, const FKey& Key)
{
	if (Key.IsMouseButton())
	{
		Drag.Begin();
		return false;
	}
	const bool bPlain = !Viewport.KeyState(EKeys::LeftControl) && !Viewport.KeyState(EKeys::RightControl) && !GetPaneButtons(Viewport).bAlt
		&& !Viewport.KeyState(EKeys::LeftShift) && !Viewport.KeyState(EKeys::RightShift);
	return Key == EKeys::F && bPlain && FramePaneCamera(Camera);
}
}
