// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <cstdint>
#include <vector>

// Finds out which part of a picture has to be painted again, from what it was and is made of.

namespace TintmillHost
{
/** Stands for no item. */
constexpr std::ptrdiff_t NoItem = -1;

/**
 * Gives every item of After the place of its equal in Before, or NoItem. Those with an equal come in the same order in both, so
 * whatever is painted by them alone stays as it is.
 */
std::vector<std::ptrdiff_t> MatchInOrder(const std::vector<std::uint64_t>& Before, const std::vector<std::uint64_t>& After);

/** Joins areas into a few that hold all of them, with little more between; empty ones are left out. */
std::vector<FIntRect> JoinAreas(const std::vector<FIntRect>& Areas);
}
