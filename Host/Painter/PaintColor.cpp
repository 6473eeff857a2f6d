// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/PaintColor.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
constexpr double DisabledOpacity = 0.5;

/** How far a disabled color goes towards the gray of its brightness. */
constexpr double DisabledGrayness = 0.8;
}

FPaintColor ToPaintColor(const FLinearColor& Color, bool bDisabled)
{
	const FColor Encoded = FLinearColor(Color.R, Color.G, Color.B, 1.0f).ToFColor(true);
	FPaintColor Result{Encoded.R / 255.0, Encoded.G / 255.0, Encoded.B / 255.0, std::clamp(static_cast<double>(Color.A), 0.0, 1.0)};
	if (bDisabled)
	{
		const double Gray = 0.3 * Result.Red + 0.59 * Result.Green + 0.11 * Result.Blue;
		Result.Red += (Gray - Result.Red) * DisabledGrayness;
		Result.Green += (Gray - Result.Green) * DisabledGrayness;
		Result.Blue += (Gray - Result.Blue) * DisabledGrayness;
		Result.Alpha *= DisabledOpacity;
	}
	return Result;
}
}
