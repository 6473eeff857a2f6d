// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"

#include <vector>

// Where two pictures differ.

namespace TintmillHost
{
/** The areas that hold all pixels of two pictures of one size that differ in their color: few of them, parted where wide bands between
 * them are the same, and none overlapping another; empty if no pixel differs. */
std::vector<FIntRect> FindDifferences(const FPicture& A, const FPicture& B);
}
