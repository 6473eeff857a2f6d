// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ElementPainter.h"
#include "Host/Picture/IDesktopPainter.h"

#include <cstdint>
#include <vector>

// Everything that a picture of the desktop is made of, from the lowest to the topmost.

namespace TintmillHost
{
/** One thing to be painted: an element of a window, the shadow of one, or the mouse's arrow if both are null. */
struct FPaintItem
{
	const FSlateDrawElement* Element = nullptr;
	const SWindow* ShadowOf = nullptr;

	/** Equal for two items that paint the same pixels in the same place. */
	std::uint64_t Fingerprint = 0;

	/** Where it paints, in pixels of the picture; nothing outside of it. */
	FIntRect Bounds;
};

/** The items of one picture. It points into the windows' element lists, so it lives no longer than a frame. */
class FPaintList
{
public:
	/** Lists what the shot shows, without fingerprints and bounds. */
	FPaintList(FElementPainter& InPainter, const FWindowShot& InShot);

	/** The items, in the order of painting. */
	std::vector<FPaintItem>& GetItems() { return Items; }
	const std::vector<FPaintItem>& GetItems() const { return Items; }

	/** Where the picture's upper left corner lies on the desktop, in pixels of the picture. */
	const FIntPoint& GetOrigin() const { return Origin; }

	/** Gives an item its fingerprint. */
	void Fingerprint(FPaintItem& Item) const;

	/** Gives an item its bounds. */
	void FindBounds(FPaintItem& Item) const;

	/** Paints an item; what lies outside of an area it may leave out. */
	void Paint(cairo_t* Context, const FPaintItem& Item, const FIntRect& Area) const;

private:
	FElementPainter& Painter;
	const FWindowShot& Shot;
	FIntPoint Origin;
	std::vector<FPaintItem> Items;
};
}
