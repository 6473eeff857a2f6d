// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Not in the engine: the memory that a viewport draws into, in place of a texture of the rendering interface.

namespace StandIn
{
/** A picture in memory: Size.X * Size.Y pixels, row-major from the top left, 8-bit sRGB. */
struct FRenderSurface
{
	/** Width and height in pixels; zero when there is nothing yet. */
	FIntPoint Size = FIntPoint(0, 0);

	/** The pixels. */
	TArray<FColor> Pixels;

	/** Grows by one with each change of the pixels; 0 before the first. */
	uint64 Revision = 0;

	/** Gives the surface a size and makes every pixel zero; the revision grows. */
	void Reset(const FIntPoint& InSize)
	{
		Size = InSize;
		Pixels.Reset();
		Pixels.AddZeroed(InSize.X * InSize.Y);
		++Revision;
	}
};
}
