// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>

// A picture that is no look: a chart of sixteen patches, for the demo project's folder of textures.

namespace TintmillHost
{
/** A PNG of 128 x 128 pixels: skin, sky, foliage and primaries above a ramp of four grays. */
std::string WriteChart();
}
