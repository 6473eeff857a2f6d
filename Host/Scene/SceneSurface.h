// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneShape.h"

// What a point on a solid or on the floor is made of.

namespace TintmillHost
{
/** The material of one point. */
struct FSceneSurface
{
	/** Share of light scattered back, linear. */
	FSceneVector Color;

	/** Strength of highlights, 0 for none. */
	float Shine = 0.0f;

	/** How small highlights are, an exponent. */
	float Sharpness = 1.0f;

	/** Share of the surroundings that is mirrored, 0..1. */
	float Mirror = 0.0f;

	/** Light that the point gives off itself, linear. */
	FSceneVector Glow;

	/** Changes where the picture needs more samples: eyes, patches of the chart. */
	int Detail = 0;
};

/** The material of a solid where a ray met it. */
FSceneSurface SolidSurface(const FSceneShape& Shape, const FSceneHit& Hit);

/** The material of the floor; the footprints are the lengths along X and Y that a pixel covers there, in meters and above 0. */
FSceneSurface FloorSurface(const FSceneVector& Point, float FootprintX, float FootprintY);
}
