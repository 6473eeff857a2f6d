// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Painter/ShapePainter.h"

// Draws the icons of view modes. They are made for sixteen units and keep their detail there.

namespace TintmillHost
{
/** Draws a view mode's icon in tints of its color; other shapes draw nothing. */
void PaintViewModeIcon(cairo_t* Context, const FShape& Shape);
}
