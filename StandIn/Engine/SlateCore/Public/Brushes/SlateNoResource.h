// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush that paints nothing.

/** A brush that paints nothing but has a size. */
struct SLATECORE_API FSlateNoResource : public FSlateBrush
{
	/** Makes a brush of a size. */
	FORCENOINLINE FSlateNoResource(const FVector2D& InImageSize = FVector2D(16, 16))
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, FName(NAME_None), FMargin(0), ESlateBrushTileType::NoTile,
			ESlateBrushImageType::NoImage, InImageSize)
	{}
};
