// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/PanePictures.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/PicturePass.h"
#include "StandIn/ScenePainter.h"

namespace TintmillHost
{
namespace
{
/** The viewports that are seen: one a pane, and the game's in windows of its own. */
TArray<TSharedPtr<FSceneViewport>> ListViewports()
{
	TArray<TSharedPtr<FSceneViewport>> Viewports;
	if (!StandIn::IsLevelEditorOpen())
	{
		return Viewports;
	}
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		Viewports.Add(Pane->GetSharedActiveViewport());
	}
	for (const TPair<FName, FSlatePlayInEditorInfo>& Instance : GEditor->SlatePlayInEditorMap)
	{
		Viewports.Add(Instance.Value.SlatePlayInEditorWindowViewport);
	}
	return Viewports;
}

/** The viewport that is shown as this one; null if none is. */
TSharedPtr<FSceneViewport> FindViewport(const ISlateViewport& Viewport)
{
	for (const TSharedPtr<FSceneViewport>& Shown : ListViewports())
	{
		if (Shown.IsValid() && static_cast<const ISlateViewport*>(Shown.Get()) == &Viewport)
		{
			return Shown;
		}
	}
	return nullptr;
}
}

FPictureView FPanePictures::Find(const ISlateViewport& Viewport, const FIntPoint& DeviceSize)
{
	const TSharedPtr<FSceneViewport> Shown = FindViewport(Viewport);
	if (!Shown.IsValid())
	{
		return {};
	}
	const StandIn::FRenderSurface& OnScreen = Shown->GetPresentedSurface();
	const bool bFiner = DeviceSize.X > OnScreen.Size.X && DeviceSize.Y > OnScreen.Size.Y;
	if (!bFiner || Shown->GetClient() == nullptr)
	{
		return {OnScreen.Size, OnScreen.Pixels.GetData(), OnScreen.Revision};
	}

	// Drawn beside the viewport, which neither changes its size nor fires an event.
	FPicture& Picture = Drawn[&Viewport];
	if (Picture.Width == DeviceSize.X && Picture.Height == DeviceSize.Y)
	{
		return {DeviceSize, Picture.Pixels.GetData()};
	}
	Picture.Width = DeviceSize.X;
	Picture.Height = DeviceSize.Y;
	Picture.Pixels.SetNumZeroed(DeviceSize.X * DeviceSize.Y);
	StandIn::PaintScene(*Shown->GetClient(), DeviceSize, Picture.Pixels.GetData());
	StandIn::ApplyPicturePasses(Shown->GetClient(), DeviceSize, Picture.Pixels.GetData());
	return {DeviceSize, Picture.Pixels.GetData()};
}
}
