// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ImageStore.h"
#include "Host/Painter/TextLayouts.h"
#include "Rendering/DrawElements.h"

#include <functional>
#include <memory>

// Turns what Slate painted into pixels.

namespace TintmillHost
{
/** Pixels that somebody else owns: rows packed from the top, opaque. */
struct FPictureView
{
	FIntPoint Size = FIntPoint(0, 0);
	const FColor* Pixels = nullptr;
};

/** Gives the picture of a viewport for an area of DeviceSize pixels; one of another size is stretched, no pixels leave it dark. */
using FViewportPictures = std::function<FPictureView(const ISlateViewport& Viewport, const FIntPoint& DeviceSize)>;

/** Gives the picture of a brush whose image is no file, for an area of DeviceSize pixels; no pixels mean that it is one. */
using FBrushPictures = std::function<FPictureView(const FSlateBrush& Brush, const FIntPoint& DeviceSize)>;

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
