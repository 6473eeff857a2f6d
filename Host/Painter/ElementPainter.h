// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ImageStore.h"
#include "Host/Painter/TextLayouts.h"
#include "Host/Picture/Picture.h"
#include "Rendering/DrawElements.h"

#include <memory>

// Turns what Slate painted into pixels.

namespace TintmillHost
{
/** Paints lists of draw elements. */
class FElementPainter
{
public:
	/** Makes a painter; texts are painted by the layouts they were measured by. */
	explicit FElementPainter(const std::shared_ptr<FTextLayouts>& InLayouts);

	/** Sets where pictures of viewports come from. */
	void SetViewportPictures(FViewportPictures InPictures) { ViewportPictures = std::move(InPictures); }

	/** Sets where pictures of brushes that name no file come from. */
	void SetBrushPictures(FBrushPictures InPictures) { BrushPictures = std::move(InPictures); }

	/** Paints all elements from the lowest layer to the highest, at Scale pixels of the surface a pixel of the desktop. */
	void Paint(cairo_t* Context, const FSlateWindowElementList& ElementList, double Scale);

private:
	void PaintElement(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintBox(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintText(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintLine(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintViewport(cairo_t* Context, const FSlateDrawElement& Element, double Scale);

	std::shared_ptr<FTextLayouts> Layouts;
	FImageStore Images;
	FViewportPictures ViewportPictures;
	FBrushPictures BrushPictures;
};
}
