// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateLayoutTransform.h"

// Where a draw element lies. Left out: rotation and shear (render transforms).

/** The place and size of a draw element, in window space. */
struct FPaintGeometry
{
	/** Upper left corner, in window space. */
	FVector2D DrawPosition;

	/** Scale from Slate units to window space. */
	float DrawScale;

	/** Makes a geometry of no size at the origin. */
	FPaintGeometry()
		: DrawPosition(0.0f, 0.0f)
		, DrawScale(1.0f)
		, LocalSize(0.0f, 0.0f)
	{}

	/** Makes a geometry of a position, a local size and a scale. */
	FPaintGeometry(const FSlateLayoutTransform& InAccumulatedLayoutTransform, const FVector2D& InLocalSize)
		: DrawPosition(InAccumulatedLayoutTransform.GetTranslation())
		, DrawScale(InAccumulatedLayoutTransform.GetScale())
		, LocalSize(InLocalSize)
	{}

	/** Makes a geometry of a position and a size, both in window space, and the scale in force there. */
	FPaintGeometry(FVector2D InDrawPosition, FVector2D InDrawSize, float InDrawScale)
		: DrawPosition(InDrawPosition)
		, DrawScale(InDrawScale)
		, LocalSize(InDrawSize / InDrawScale)
	{}

	/** Returns the size in Slate units. */
	const FVector2D& GetLocalSize() const { return LocalSize; }

	/** Returns the size in window space. */
	FVector2D GetDrawSize() const { return LocalSize * DrawScale; }

private:
	FVector2D LocalSize;
};
