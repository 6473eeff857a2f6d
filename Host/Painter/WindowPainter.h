// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ElementPainter.h"
#include "Host/Picture/IDesktopPainter.h"

#include <cstdint>
#include <vector>

// Pictures of whole windows, with what lies above them.

namespace TintmillHost
{
/** Paints windows one above the other; menus and tool tips throw a shadow. */
FPicture PaintWindows(FElementPainter& Painter, const FWindowShot& Shot);

/** A picture of windows that is kept from frame to frame and painted again only where it changed. */
class FKeptPicture
{
public:
	explicit FKeptPicture(FElementPainter& InPainter);

	/** Brings a picture that this filled last up to date; returns the areas that were painted again, all of it after a change of size. */
	TArray<FIntRect> Update(const FWindowShot& Shot, FPicture& InOutPicture);

private:
	FElementPainter& Painter;
	double Scale = 0.0;
	FIntPoint Origin = FIntPoint(0, 0);

	/** A picture of the same size to paint in. */
	FPicture Aside;

	/** What the picture is made of: fingerprints and bounds of its items. */
	std::vector<std::uint64_t> Fingerprints;
	std::vector<FIntRect> Bounds;
};
}
