// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneCamera.h"
#include "Host/Scene/ScenePicture.h"
#include "Host/Scene/SceneTracer.h"

#include <vector>

namespace TintmillHost
{
/** One picture of the scene: a sample for every pixel, then more samples where neighbors differ in kind. */
class FSceneFrame
{
public:
	/** Sets up the rays of a picture that is not empty. */
	FSceneFrame(const FSceneCamera& InCamera, const FScenePicture& InPicture);

	/** Fills the picture, its tiles shared between threads. */
	void Paint(int ThreadCount);

private:
	struct FTile
	{
		int Left = 0;
		int Top = 0;
		int Right = 0;
		int Bottom = 0;
		std::vector<int> Visible;
	};

	FSceneRay RayAt(float X, float Y) const;
	FSceneSample SampleAt(const FTile& Tile, float X, float Y) const;
	FSceneVector Backdrop(const FSceneRay& Ray) const;
	void SampleTile(FTile& Tile);
	void RefineTile(const FTile& Tile) const;
	bool IsEdge(int X, int Y) const;
	FSceneSample& At(int X, int Y);
	const FSceneSample& At(int X, int Y) const;

	FSceneCamera Camera;
	FScenePicture Picture;
	FSceneAxes Axes;
	FSceneTracer Tracer;
	bool bFlat = false;

	/** Meters a pixel: at distance 1 in perspective, everywhere in flat views. */
	float PixelSize = 1.0f;

	std::vector<FTile> Tiles;
	std::vector<FSceneSample> Samples;
};
}
