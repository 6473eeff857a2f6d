// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateBrush.h"

FSlateBrush::FSlateBrush()
	: FSlateBrush(ESlateBrushDrawType::Image, FName(NAME_None), FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage,
		FVector2D(32.0f, 32.0f))
{}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin,
	ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FSlateColor& InTint,
	UObject* InObjectResource)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, Mirroring(ESlateBrushMirrorType::NoMirror)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
	, ResourceObject(InObjectResource)
{}

void FSlateBrush::SetResourceObject(UObject* InResourceObject)
{
	ResourceObject = InResourceObject;
}

bool FSlateBrush::operator==(const FSlateBrush& Other) const
{
	return ImageSize == Other.ImageSize && DrawAs == Other.DrawAs && Margin == Other.Margin && TintColor == Other.TintColor
		&& Tiling == Other.Tiling && Mirroring == Other.Mirroring && ImageType == Other.ImageType && ResourceObject == Other.ResourceObject
		&& ResourceName == Other.ResourceName;
}
