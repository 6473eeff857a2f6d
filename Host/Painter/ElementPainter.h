// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/Fingerprint.h"
#include "Host/Painter/ImageStore.h"
#include "Host/Painter/TextLayouts.h"
#include "Host/Picture/Picture.h"
#include "Rendering/DrawElements.h"

#include <map>
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

	/** Paints one element. */
	void Paint(cairo_t* Context, const FSlateDrawElement& Element, double Scale);

	/** The pixels of the surface that painting an element may touch. */
	FIntRect FindBounds(const FSlateDrawElement& Element, double Scale);

	/** Whether painting a part of an element gives the same pixels there as painting all of it; smoothed edges may differ a little. */
	bool CanBePaintedInParts(const FSlateDrawElement& Element, double Scale) const;

	/** Takes the picture that an element shows, if it shows one, into the element's fingerprint. */
	void AddPicture(FFingerprint& InOutFingerprint, const FSlateDrawElement& Element, double Scale);

private:
	FPictureView FindPicture(const FSlateDrawElement& Element, double Scale) const;
	FIntRect FindTextBounds(const FSlateDrawElement& Element, double Scale);
	void PaintElement(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintBox(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintText(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintLine(cairo_t* Context, const FSlateDrawElement& Element, double Scale);
	void PaintViewport(cairo_t* Context, const FSlateDrawElement& Element, double Scale);

	std::shared_ptr<FTextLayouts> Layouts;
	FImageStore Images;
	FViewportPictures ViewportPictures;
	FBrushPictures BrushPictures;

	/** A number for every viewport that was painted: a new one at an old address gets another. */
	struct FSeenViewport
	{
		TWeakPtr<const ISlateViewport> Viewport;
		uint64 Number = 0;
	};
	std::map<const ISlateViewport*, FSeenViewport> SeenViewports;
	uint64 LastViewportNumber = 0;
};
}
