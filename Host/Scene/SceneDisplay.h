// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneMath.h"

#include <cstdint>

// From linear light to the eight bits of a display.

namespace TintmillHost
{
/** Three channels of eight bits. */
struct FSceneByteColor
{
	std::uint8_t Red = 0;
	std::uint8_t Green = 0;
	std::uint8_t Blue = 0;
};

/** Film-like curve and sRGB encoding; Dither, -0.5..0.5, hides steps in even areas. */
FSceneByteColor ToDisplay(const FSceneVector& Light, float Dither);

/** sRGB encoding alone, for colors that have to come out as they were given. */
FSceneByteColor ToSrgb(const FSceneVector& Color);

/** An even, repeatable pattern of -0.5..0.5 over the pixels. */
float SceneDither(int X, int Y);
}
