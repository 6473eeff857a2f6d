// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneShape.h"
#include "Host/Scene/SceneSurface.h"

#include <vector>

// Follows one ray into the scene and says which light comes back along it.

namespace TintmillHost
{
/** Light along one ray, and what tells neighboring pixels apart. */
struct FSceneSample
{
	/** Linear light. */
	FSceneVector Light;

	/** Solid and detail that was met; neighbors with different keys get more samples. */
	int Key = 0;
};

/** A scene made ready for rays. Constant after construction, so threads may share it. */
class FSceneTracer
{
public:
	/** Takes the solids; with a backdrop, rays that meet nothing end in an even studio gray instead of the sky. */
	FSceneTracer(std::vector<FSceneShape> InShapes, bool bInBackdrop);

	/** Follows a ray; Visible names the solids to test, Spread is the width that a pixel gains a meter, Width its width at the start. */
	FSceneSample Trace(const FSceneRay& Ray, const std::vector<int>& Visible, float Width, float Spread) const;

	/** Numbers of the solids that a cone from the origin may meet; a cone with slope 0 is a cylinder. */
	void FindVisible(const FSceneRay& Axis, float Width, float Slope, std::vector<int>& OutVisible) const;

private:
	struct FPoint
	{
		FSceneVector Position;
		FSceneVector Normal;
		FSceneVector View;
		int Shape = -1;
	};

	/** A solid that hides a part of the sky from what is nearer than its reach. */
	struct FSkyHider
	{
		FSceneVector Center;
		float ReachSquared = 0.0f;
		int Shape = 0;
	};

	FSceneVector Background(const FSceneVector& Direction) const;
	FSceneVector Shade(const FPoint& Point, const FSceneSurface& Surface) const;
	FSceneVector SunLight(const FPoint& Point, const FSceneSurface& Surface) const;
	FSceneVector LampLight(const FPoint& Point, const FSceneSurface& Surface) const;
	FSceneVector Reflection(const FPoint& Point) const;
	float SeenSky(const FPoint& Point) const;
	float Passing(const FPoint& Point, const FSceneVector& ToLight, float Reach, float Softness) const;
	bool Find(const FSceneRay& Ray, const std::vector<int>& Visible, FPoint& OutPoint, FSceneHit& OutHit) const;

	std::vector<FSceneShape> Shapes;
	std::vector<int> All;
	std::vector<FSceneVector> Centers;
	std::vector<float> Radii;
	std::vector<FSkyHider> SkyHiders;
	int Lamp = -1;
	bool bBackdrop = false;
};
}
