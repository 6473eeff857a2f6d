// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

// What a run without a window shows of somebody's own project.

namespace TintmillHost
{
/** Commands that save a picture of every pane as it was left, and of every look without and with it; the first MaxRoadLooks ones if there
 * are more. Looks are package names. It changes nothing. */
std::string MakeProjectRoad(const std::string& ProjectName, const std::vector<std::string>& Looks);

/** Looks that the road shows. */
constexpr size_t MaxRoadLooks = 40;
}
