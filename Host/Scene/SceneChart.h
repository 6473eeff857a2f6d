// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/ScenePicture.h"

namespace TintmillHost
{
/** Fills the picture with flat fields: patches, a row of skin, gray steps, and smooth ramps of gray, hue and primaries. */
void PaintSceneChart(const FScenePicture& Picture);
}
