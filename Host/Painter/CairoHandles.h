// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cairo.h>

#include <memory>

// Cairo's objects as owners.

namespace TintmillHost
{
/** Lets go of Cairo's objects. */
struct FCairoRelease
{
	void operator()(cairo_t* Context) const { cairo_destroy(Context); }
	void operator()(cairo_surface_t* Surface) const { cairo_surface_destroy(Surface); }
	void operator()(cairo_pattern_t* Pattern) const { cairo_pattern_destroy(Pattern); }
};

using FCairoContext = std::unique_ptr<cairo_t, FCairoRelease>;
using FCairoSurface = std::unique_ptr<cairo_surface_t, FCairoRelease>;
using FCairoPattern = std::unique_ptr<cairo_pattern_t, FCairoRelease>;
}
