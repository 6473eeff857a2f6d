// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush that paints an image in nine slices: corners as they are, edges and centre stretched.

/** A brush that paints an image in nine slices: corners as they are, edges and centre stretched; margins are parts of the image. */
struct SLATECORE_API FSlateBoxBrush : public FSlateBrush
{
	/** Makes a brush of an image by name. */
	FORCENOINLINE FSlateBoxBrush(const FName& InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(
			ESlateBrushDrawType::Box, InImageName, InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(16, 16), InColorAndOpacity)
	{}

	/** Makes a brush of an image by path. */
	FORCENOINLINE FSlateBoxBrush(const FString& InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBoxBrush(FName(*InImageName), InMargin, InColorAndOpacity, InImageType)
	{}

	/** Makes a brush of an image by narrow path. */
	FORCENOINLINE FSlateBoxBrush(const ANSICHAR* InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBoxBrush(FName(InImageName), InMargin, InColorAndOpacity, InImageType)
	{}

	/** Makes a brush of an image by wide path. */
	FORCENOINLINE FSlateBoxBrush(const TCHAR* InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBoxBrush(FName(InImageName), InMargin, InColorAndOpacity, InImageType)
	{}
};
