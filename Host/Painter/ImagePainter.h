// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Painter/DeviceRect.h"
#include "Styling/SlateBrush.h"

// Draws images the way a brush says: stretched, repeated, mirrored, or in nine parts whose corners keep their size.

namespace TintmillHost
{
/** Draws an image over an area at an opacity; Scale is pixels a unit, and a pixel of the image counts as one unit. */
void PaintImage(cairo_t* Context, cairo_surface_t* Image, const FSlateBrush& Brush, const FDeviceRect& Rect, double Scale, double Opacity);
}
