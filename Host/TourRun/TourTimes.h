// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Gallery/GalleryPage.h"

#include <ostream>
#include <vector>

// How long the commands of a tour took.

namespace TintmillHost
{
/** Prints commands with their places and times, one a line, and below them their sum and the slowest; nothing if there are none. */
void PrintTourTimes(std::ostream& Output, const std::vector<FGalleryCommand>& Commands);
}
