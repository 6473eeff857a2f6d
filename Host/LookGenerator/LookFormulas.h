// Copyright The Tintmill authors. All rights reserved.

#pragma once

// The looks of the demo project as formulas. In and out are display values, sRGB encoded, 0..1 a channel.

namespace TintmillHost
{
/** Red, green and blue. */
struct FLookColor
{
	double Red = 0.0;
	double Green = 0.0;
	double Blue = 0.0;
};

/** A look: the color that takes the place of a color. */
typedef FLookColor (*FLookFormula)(const FLookColor& In);

/** Film print: a soft curve, golden lights, shadows with a breath of green-blue. */
FLookColor WarmPrint(const FLookColor& In);

/** Day for night: darker, blue, little color but in warm lights. */
FLookColor CoolNight(const FLookColor& In);

/** Silver left in the film: hard contrast, half the color. */
FLookColor BleachBypass(const FLookColor& In);

/** Black and white through a yellow filter, toned faintly warm in the shadows. */
FLookColor Monochrome(const FLookColor& In);

/** The curve that Monochrome applies to each channel first. */
double MonochromeCurve(double Value);

/** Skin stays, everything else moves towards teal. */
FLookColor TealOrange(const FLookColor& In);

/** Exposure as bands of color: crushed blue-violet, middle gray green, skin pink, clipping red. */
FLookColor FalseColor(const FLookColor& In);
}
