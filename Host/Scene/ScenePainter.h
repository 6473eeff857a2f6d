// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneCamera.h"

#include "Math/Color.h"
#include "Math/IntPoint.h"

// Paints a picture that is worth grading: skin, primaries, grays, bright sky and deep shadow.

namespace TintmillHost
{
/** Fills Size.X * Size.Y pixels, rows packed from the top, opaque, 8-bit sRGB. The same camera and size always give the same bytes, whatever the number of threads. */
void PaintScene(const FSceneCamera& Camera, const FIntPoint& Size, FColor* OutPixels, int ThreadCount = 2);

/** The same with one sample for Coarseness by Coarseness pixels, smoothly enlarged: for pictures that are looked at for a moment only. */
void PaintSceneCoarsely(const FSceneCamera& Camera, const FIntPoint& Size, FColor* OutPixels, int Coarseness, int ThreadCount);
}
