// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneShape.h"

#include <vector>

// What stands in the scene: four figures, balls of chrome, white, gray and black, a color chart, columns and a lamp.

namespace TintmillHost
{
/** The solids of the scene at a time in seconds; at 0 everything rests on the floor (Z = 0). */
std::vector<FSceneShape> BuildScene(float Seconds);

/** Number of patches of the color chart, 6 a row in 4 rows. */
constexpr int ScenePatchCount = 24;

/** Linear color of a patch: two rows of natural and mixed colors, one of primaries, one of grays from white to black. */
FSceneVector ScenePatch(int Index);
}
