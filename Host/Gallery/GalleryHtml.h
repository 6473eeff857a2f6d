// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Gallery/GalleryPage.h"

#include <ostream>

// The page as HTML.

namespace TintmillHost
{
/** Writes the whole page. It is well-formed XML too, needs no other file, and shows everything without scripts but the filter and the enlarged view. */
void WriteGalleryHtml(
	std::ostream& Page, const std::string& Title, const std::vector<FGalleryStep>& Steps, const std::vector<FGalleryLogLine>& Log);
}
