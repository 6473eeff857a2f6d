// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <cairo.h>

// Colors as they reach the screen. Slate speaks of linear light; the screen shows sRGB, and transparency mixes there.

namespace TintmillHost
{
/** A color on the screen: sRGB and opacity, each from 0 to 1. */
struct FPaintColor
{
	double Red = 1.0;
	double Green = 1.0;
	double Blue = 1.0;
	double Alpha = 1.0;

	/** Makes the color the one that Cairo paints with. */
	void Use(cairo_t* Context) const { cairo_set_source_rgba(Context, Red, Green, Blue, Alpha); }

	/** The color with its opacity multiplied. */
	FPaintColor Faded(double Factor) const { return {Red, Green, Blue, Alpha * Factor}; }

	/** The color with its brightness multiplied. */
	FPaintColor Darkened(double Factor) const { return {Red * Factor, Green * Factor, Blue * Factor, Alpha}; }
};

/** A linear color as it reaches the screen; that of something disabled is nearly gray and half as strong. */
FPaintColor ToPaintColor(const FLinearColor& Color, bool bDisabled = false);
}
