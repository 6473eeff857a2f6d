// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookGenerator/LookFormulas.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace LookFormulasPrivate
{
static double Limit(double Value)
{
	return std::min(std::max(Value, 0.0), 1.0);
}

static double Luma(const FLookColor& Color)
{
	return 0.2126 * Color.Red + 0.7152 * Color.Green + 0.0722 * Color.Blue;
}

static FLookColor Mix(const FLookColor& A, const FLookColor& B, double T)
{
	return {A.Red + (B.Red - A.Red) * T, A.Green + (B.Green - A.Green) * T, A.Blue + (B.Blue - A.Blue) * T};
}

static FLookColor Limited(const FLookColor& Color)
{
	return {Limit(Color.Red), Limit(Color.Green), Limit(Color.Blue)};
}

/** Moves colors away from gray (Amount above 1) or towards it. */
static FLookColor Saturate(const FLookColor& Color, double Amount)
{
	const double Gray = Luma(Color);
	return Mix({Gray, Gray, Gray}, Color, Amount);
}

/** An S around Pivot; Amount 0 is a straight line, both ends stay. */
static double Contrast(double Value, double Amount, double Pivot)
{
	const double X = Limit(Value);
	const double Power = 1.0 + Amount;
	const double Curve = X < Pivot ? Pivot * std::pow(X / Pivot, Power) : 1.0 - (1.0 - Pivot) * std::pow((1.0 - X) / (1.0 - Pivot), Power);
	return Curve;
}

static FLookColor Contrast(const FLookColor& Color, double Amount, double Pivot)
{
	return {Contrast(Color.Red, Amount, Pivot), Contrast(Color.Green, Amount, Pivot), Contrast(Color.Blue, Amount, Pivot)};
}

/** Adds one tint in the shadows and another in the lights, weighed by brightness. */
static FLookColor SplitTone(const FLookColor& Color, const FLookColor& Shadows, const FLookColor& Lights)
{
	const double Bright = Limit(Luma(Color));
	const double InShadow = (1.0 - Bright) * (1.0 - Bright) * 4.0 * Bright;
	const double InLight = Bright * Bright * 4.0 * (1.0 - Bright);
	return {Color.Red + Shadows.Red * InShadow + Lights.Red * InLight, Color.Green + Shadows.Green * InShadow + Lights.Green * InLight,
		Color.Blue + Shadows.Blue * InShadow + Lights.Blue * InLight};
}

/** Presses the range of a display value between a black and a white. */
static FLookColor Between(const FLookColor& Color, const FLookColor& Black, const FLookColor& White)
{
	return {Black.Red + (White.Red - Black.Red) * Color.Red, Black.Green + (White.Green - Black.Green) * Color.Green,
		Black.Blue + (White.Blue - Black.Blue) * Color.Blue};
}
}

FLookColor WarmPrint(const FLookColor& In)
{
	using namespace LookFormulasPrivate;
	FLookColor Color = Contrast(Limited(In), 0.32, 0.42);
	Color = SplitTone(Color, {-0.030, 0.004, 0.022}, {0.070, 0.024, -0.085});
	Color = Saturate(Color, 0.92);
	return Limited(Between(Limited(Color), {0.030, 0.028, 0.034}, {1.0, 0.965, 0.890}));
}

FLookColor CoolNight(const FLookColor& In)
{
	using namespace LookFormulasPrivate;
	const FLookColor Day = Limited(In);
	const double Warm = Limit((Day.Red - Day.Blue - 0.12) * 2.2) * Limit((Luma(Day) - 0.45) * 2.5);
	const double Gray = 0.15 * Day.Red + 0.55 * Day.Green + 0.30 * Day.Blue;
	const double Dark = 0.78 * std::pow(Limit(Gray), 1.45);
	const FLookColor Moon = {Dark * 0.62, Dark * 0.86, Dark * 1.26};
	const FLookColor Tinted = Mix(Moon, {Day.Red * 0.52, Day.Green * 0.56, Day.Blue * 0.78}, 0.30);
	const FLookColor Lamp = {Day.Red * 0.92, Day.Green * 0.78, Day.Blue * 0.62};
	return Limited(Between(Limited(Mix(Tinted, Lamp, 0.45 * Warm)), {0.006, 0.010, 0.024}, {0.94, 0.97, 1.0}));
}

FLookColor BleachBypass(const FLookColor& In)
{
	using namespace LookFormulasPrivate;
	const FLookColor Color = Limited(In);
	const double Silver = Luma(Color);
	const auto Overlay = [Silver](
							 double Value) { return Silver < 0.5 ? 2.0 * Silver * Value : 1.0 - 2.0 * (1.0 - Silver) * (1.0 - Value); };
	const FLookColor Hard = {Overlay(Color.Red), Overlay(Color.Green), Overlay(Color.Blue)};
	const FLookColor Mixed = Saturate(Mix(Color, Hard, 0.72), 0.46);
	return Limited(Between(Mixed, {0.016, 0.018, 0.020}, {0.985, 0.990, 0.985}));
}

double MonochromeCurve(double Value)
{
	return LookFormulasPrivate::Contrast(Value, 0.30, 0.40);
}

FLookColor Monochrome(const FLookColor& In)
{
	using namespace LookFormulasPrivate;
	const FLookColor Color = Limited(In);
	const double Gray = Limit(0.44 * Color.Red + 0.50 * Color.Green + 0.06 * Color.Blue);
	return Limited(SplitTone({Gray, Gray, Gray}, {0.018, 0.004, -0.014}, {0.006, 0.002, -0.006}));
}

FLookColor TealOrange(const FLookColor& In)
{
	using namespace LookFormulasPrivate;
	const FLookColor Color = Contrast(Limited(In), 0.18, 0.42);
	const double Warmth = Limit(0.5 + 1.6 * (Color.Red - Color.Blue));
	const double Gray = Luma(Color);
	const FLookColor Teal = {Gray * 0.70 + 0.10 * Color.Red, Gray * 0.96 + 0.10 * Color.Green, Gray * 1.04 + 0.12 * Color.Blue};
	const FLookColor Orange = Saturate({Color.Red * 1.05, Color.Green * 0.98, Color.Blue * 0.88}, 1.06);
	FLookColor Result = Mix(Mix(Color, Teal, 0.72), Orange, Warmth);
	Result = SplitTone(Result, {-0.035, 0.010, 0.035}, {0.030, 0.006, -0.030});
	return Limited(Result);
}

FLookColor FalseColor(const FLookColor& In)
{
	using namespace LookFormulasPrivate;
	struct FBand
	{
		double UpTo;
		FLookColor Color;
	};
	const double Exposure = Luma(Limited(In));
	static const FBand Bands[] = {{0.035, {0.34, 0.10, 0.52}}, {0.11, {0.10, 0.28, 0.72}}, {0.40, {-1.0, 0.0, 0.0}},
		{0.48, {0.22, 0.62, 0.30}}, {0.54, {-1.0, 0.0, 0.0}}, {0.62, {0.94, 0.62, 0.66}}, {0.80, {-1.0, 0.0, 0.0}},
		{0.93, {0.95, 0.88, 0.30}}, {2.0, {0.88, 0.16, 0.12}}};
	for (const FBand& Band : Bands)
	{
		if (Exposure < Band.UpTo)
		{
			// Between the bands the picture stays gray, so that it can still be read.
			return Band.Color.Red < 0.0 ? FLookColor{Exposure, Exposure, Exposure} : Band.Color;
		}
	}
	return In;
}
}
