// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Painter/ShapePainter.h"

// Draws the icons of tool bars, which are shapes with shading and details of their own.

namespace TintmillHost
{
/** Draws an icon in tints of its color; shapes that are no icons draw nothing. */
void PaintIcon(cairo_t* Context, const FShape& Shape);
}
