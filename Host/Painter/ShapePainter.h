// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Painter/DeviceRect.h"
#include "Host/Painter/PaintColor.h"
#include "StandIn/BrushShape.h"

// Draws what the core style's brushes name instead of image files.

namespace TintmillHost
{
/** A shape to be drawn: where, in which color, and how many pixels a unit has; radii and sizes are in units. */
struct FShape
{
	StandIn::EBrushShape Kind = StandIn::EBrushShape::None;
	FDeviceRect Rect;
	FPaintColor Color;
	double CornerRadius = 0.0;
	double Scale = 1.0;
};

/** Draws a shape; None draws nothing. */
void PaintShape(cairo_t* Context, const FShape& Shape);

/** How far outside of its area a shape may draw, in pixels. */
double ReachOfShape(const FShape& Shape);

/** How far outside of its area a shadow of Reach units draws, in pixels. */
double ReachOfShadow(const FShape& Shape, double Reach);

/** Draws a soft shadow of Reach units around and a little below an area, as a shape's color has it at its darkest. */
void PaintShadow(cairo_t* Context, const FShape& Shape, double Reach);
}
