// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush of one colour.

/** A brush of one colour. */
struct SLATECORE_API FSlateColorBrush : public FSlateBrush
{
	/** Makes a brush of a linear colour. */
	FORCENOINLINE FSlateColorBrush(const FLinearColor& InColor)
		: FSlateColorBrush(FSlateColor(InColor))
	{}

	/** Makes a brush of an sRGB colour. */
	FORCENOINLINE FSlateColorBrush(const FColor& InColor)
		: FSlateColorBrush(FSlateColor(FLinearColor(InColor)))
	{}

	/** Makes a brush of a colour that may follow the foreground. */
	FORCENOINLINE FSlateColorBrush(const FSlateColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(NAME_None), FMargin(0.0f), ESlateBrushTileType::NoTile,
			ESlateBrushImageType::NoImage, FVector2D(16, 16), InColor)
	{}
};
