// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "TintmillAPI_ImageDesc.h"

class FViewport;

/** The picture that a viewport drew last, in the form that the look builder takes. */
class FViewportCapture
{
public:
	/** Reads the viewport's pixels. A viewport that delivers none gives an empty picture of the viewport's size. */
	explicit FViewportCapture(FViewport& Viewport);

	/** Describes the picture. The description borrows the pixels and ends with this object. */
	FTintmillAPI_ImageDesc& GetImageDesc() { return ImageDesc; }

	/** Writes each pixel as red, green, blue and alpha, in the order of the pixels, into an array that it sizes. */
	static void WritePixels(const TArray<FColor>& InPixels, TArray<uint8>& OutBytes);

	/** The conversion alone: OutBytes has four bytes for each pixel already; anything else is fatal. */
	static void SwapRedAndBlue(const TArray<FColor>& InPixels, TArray<uint8>& OutBytes);

private:
	TArray<uint8> Bytes;
	FTintmillAPI_ImageDesc ImageDesc;
};
