// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/ScenePainter.h"

#include "Host/Scene/SceneChart.h"
#include "Host/Scene/SceneFrame.h"
#include "Host/Scene/ScenePicture.h"

namespace TintmillHost
{
void PaintScene(const FSceneCamera& Camera, const FIntPoint& Size, FColor* OutPixels, int ThreadCount)
{
	if (Size.X <= 0 || Size.Y <= 0)
	{
		return;
	}
	const FScenePicture Picture = {Size.X, Size.Y, OutPixels};
	if (Camera.View == ESceneView::Chart)
	{
		PaintSceneChart(Picture);
		return;
	}
	FSceneFrame Frame(Camera, Picture);
	Frame.Paint(ThreadCount);
}
}
