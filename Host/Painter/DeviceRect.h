// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Layout/SlateRect.h"
#include "Math/IntRect.h"

#include <cairo.h>

// Areas in pixels of the picture.

namespace TintmillHost
{
/** An area whose edges lie between pixels. */
struct FDeviceRect
{
	double X = 0.0;
	double Y = 0.0;
	double Width = 0.0;
	double Height = 0.0;

	/** The area with all edges moved inwards. */
	FDeviceRect Shrunk(double Amount) const { return {X + Amount, Y + Amount, Width - 2.0 * Amount, Height - 2.0 * Amount}; }

	/** Whether there is nothing in it. */
	bool IsEmpty() const { return Width <= 0.0 || Height <= 0.0; }
};

/** The pixels of a desktop rectangle at Scale pixels a unit; edges go to the nearest pixel's, so neighbors stay neighbors. */
FDeviceRect ToDeviceRect(const FSlateRect& Rect, double Scale);

/** The whole pixels that an area touches. */
FIntRect ToPixels(const FDeviceRect& Rect);

/** Adds the outline of the area with rounded corners to Cairo's path. */
void AddRoundedRect(cairo_t* Context, const FDeviceRect& Rect, double Radius);
}
