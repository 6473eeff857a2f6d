// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/Picture.h"

namespace StandIn
{
struct FLookBuilderRequest;
}
class UTintmillObject;

// The picture that a look is judged by, as it is and through the look.

namespace TintmillHost
{
/** Which part of a picture an area shows, and where in it the look begins. */
struct FBuilderView
{
	/** The share of the area, from the left, that shows the picture without the look; 0 to 1. */
	float Split = 0.5f;

	/** How many times larger than at first the picture is; 1 to 64. At first all of it fits, a whole number of times its size if it can. */
	float Zoom = 1.0f;

	/** The point of the picture in the middle of the area, as shares of its width and height. */
	FVector2D Center = FVector2D(0.5f, 0.5f);
};

/** A captured picture and the same picture through a look. */
class FBuilderPicture
{
public:
	/** Copies the picture of a request; one without pixels, or with fewer than its size says, is empty. */
	explicit FBuilderPicture(const StandIn::FLookBuilderRequest& Request);

	/** Makes the picture through the look anew; one that cannot be used leaves it as it was captured. */
	void Grade(const UTintmillObject* Look);

	/** Says whether there is no picture. */
	bool IsEmpty() const { return Captured.Pixels.Num() == 0; }

	/** Width and height in pixels; zero for an empty one. */
	FIntPoint GetSize() const { return FIntPoint(Captured.Width, Captured.Height); }

	/** The pixel without the look; inside the picture only. */
	FColor GetBefore(const FIntPoint& Pixel) const { return Captured.Pixels[Pixel.Y * Captured.Width + Pixel.X]; }

	/** The pixel through the look; inside the picture only. */
	FColor GetAfter(const FIntPoint& Pixel) const { return Graded.Pixels[Pixel.Y * Graded.Width + Pixel.X]; }

	/** The pixel that a point of an area shows; false beside the picture. */
	bool FindPixel(const FVector2D& Area, const FBuilderView& View, const FVector2D& Point, FIntPoint& OutPixel) const;

	/** What an area of this many pixels shows: before the split the captured picture, after it the graded one. */
	FPicture Compose(const FIntPoint& Area, const FBuilderView& View) const;

	/** Pixels of the area a pixel of the picture. */
	float GetScale(const FVector2D& Area, const FBuilderView& View) const;

private:
	FPicture Captured;
	FPicture Graded;
};
}
