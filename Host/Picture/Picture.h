// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <functional>

class ISlateViewport;
struct FSlateBrush;

// Pictures in memory, and who gives them to the painter.

namespace TintmillHost
{
/** A picture of Width x Height pixels, rows packed from the top, 8 bits a channel. */
struct FPicture
{
	int32 Width = 0;
	int32 Height = 0;
	TArray<FColor> Pixels;
};

/** Pixels that somebody else owns: rows packed from the top, opaque. */
struct FPictureView
{
	FIntPoint Size = FIntPoint(0, 0);
	const FColor* Pixels = nullptr;

	/** Tells pictures of one source apart; 0 where only the pixels do. */
	uint64 Revision = 0;
};

/** Gives the picture of a viewport for an area of DeviceSize pixels; one of another size is stretched, no pixels leave it dark. */
using FViewportPictures = std::function<FPictureView(const ISlateViewport& Viewport, const FIntPoint& DeviceSize)>;

/** Gives the picture of a brush whose image is no file, for an area of DeviceSize pixels; no pixels mean that it is one. */
using FBrushPictures = std::function<FPictureView(const FSlateBrush& Brush, const FIntPoint& DeviceSize)>;
}
