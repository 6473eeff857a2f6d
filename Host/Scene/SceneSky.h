// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneMath.h"

// The evening sky with its clouds and hills, and the light that it gives.

namespace TintmillHost
{
/** Direction towards the sun, length 1. */
FSceneVector SceneSunDirection();

/** Linear color of the sky in a direction of length 1; below the horizon the color of the far floor. */
FSceneVector SceneSky(const FSceneVector& Direction);

/** Linear color of the air between the viewer and the far floor in a direction of length 1. */
FSceneVector SceneHaze(const FSceneVector& Direction);

/** A smooth pattern of values 0..1 over the plane, the same on every machine. */
float SceneNoise(float X, float Y);

/** Light from the whole sky on a surface with the normal, linear. */
FSceneVector SceneSkyLight(const FSceneVector& Normal);
}
