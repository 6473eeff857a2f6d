// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush that paints a whole image.

/** A brush that paints a whole image at a size in Slate units. */
struct SLATECORE_API FSlateImageBrush : public FSlateBrush
{
	/** Makes a brush of an image by name. */
	FORCENOINLINE FSlateImageBrush(const FName& InImageName, const FVector2D& InImageSize,
		const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InImageName, FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by path. */
	FORCENOINLINE FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize,
		const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by narrow path. */
	FORCENOINLINE FSlateImageBrush(const ANSICHAR* InImageName, const FVector2D& InImageSize,
		const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by wide path. */
	FORCENOINLINE FSlateImageBrush(const TCHAR* InImageName, const FVector2D& InImageSize,
		const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by name with a colour that may follow the foreground. */
	FORCENOINLINE FSlateImageBrush(const FName& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InImageName, FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by path with a colour that may follow the foreground. */
	FORCENOINLINE FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by narrow path with a colour that may follow the foreground. */
	FORCENOINLINE FSlateImageBrush(const ANSICHAR* InImageName, const FVector2D& InImageSize, const FSlateColor& InTint,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an image by wide path with a colour that may follow the foreground. */
	FORCENOINLINE FSlateImageBrush(const TCHAR* InImageName, const FVector2D& InImageSize, const FSlateColor& InTint,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{}

	/** Makes a brush of an object that is the image. */
	FORCENOINLINE FSlateImageBrush(UObject* InResourceObject, const FVector2D& InImageSize,
		const FSlateColor& InTint = FSlateColor(FLinearColor(1, 1, 1, 1)), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0), InTiling, InImageType, InImageSize, InTint, InResourceObject)
	{}
};
