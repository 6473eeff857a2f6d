// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush that paints the edges of an image in nine slices and leaves the centre free.

/** A brush that paints the edges of an image in nine slices and leaves the centre free; margins are parts of the image. */
struct SLATECORE_API FSlateBorderBrush : public FSlateBrush
{
	/** Makes a brush of an image by name. */
	FORCENOINLINE FSlateBorderBrush(const FName& InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Border, InImageName, InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(16, 16),
			InColorAndOpacity)
	{}

	/** Makes a brush of an image by path. */
	FORCENOINLINE FSlateBorderBrush(const FString& InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBorderBrush(FName(*InImageName), InMargin, InColorAndOpacity, InImageType)
	{}

	/** Makes a brush of an image by narrow path. */
	FORCENOINLINE FSlateBorderBrush(const ANSICHAR* InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBorderBrush(FName(InImageName), InMargin, InColorAndOpacity, InImageType)
	{}

	/** Makes a brush of an image by wide path. */
	FORCENOINLINE FSlateBorderBrush(const TCHAR* InImageName, const FMargin& InMargin,
		const FSlateColor& InColorAndOpacity = FSlateColor(FLinearColor(1, 1, 1, 1)),
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBorderBrush(FName(InImageName), InMargin, InColorAndOpacity, InImageType)
	{}
};
