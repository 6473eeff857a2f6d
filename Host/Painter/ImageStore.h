// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/CairoHandles.h"

#include <map>
#include <string>

// The image files that brushes name. Each is read once, when it is first drawn.

namespace TintmillHost
{
/** Keeps images in memory; PNG files only. */
class FImageStore
{
public:
	/** The image of a file, multiplied by the tint's color (not its opacity); null for a file that cannot be read, which is logged once. */
	cairo_surface_t* Find(const std::string& File, const FLinearColor& Tint);

private:
	cairo_surface_t* Load(const std::string& File);

	std::map<std::string, FCairoSurface> Images;
	std::map<std::string, FCairoSurface> TintedImages;
};
}
