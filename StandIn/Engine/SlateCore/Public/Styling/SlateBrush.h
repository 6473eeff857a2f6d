// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"

class UObject;

// How an area is painted. The engine reflects this struct; here it is plain. Left out: dynamically loaded brushes, materials,
// texture regions.

namespace ESlateBrushDrawType
{
/** How a brush fills an area. */
enum Type
{
	NoDrawType,
	Box,
	Border,
	Image
};
}

namespace ESlateBrushTileType
{
/** How a brush repeats its image. */
enum Type
{
	NoTile,
	Horizontal,
	Vertical,
	Both
};
}

namespace ESlateBrushMirrorType
{
/** How a brush mirrors its image. */
enum Type
{
	NoMirror,
	Horizontal,
	Vertical,
	Both
};
}

namespace ESlateBrushImageType
{
/** What kind of image a brush has. */
enum Type
{
	NoImage,
	FullColor,
	Linear
};
}

/** How an area is painted: an image or colour and its way of filling. */
struct SLATECORE_API FSlateBrush
{
	/** Size of the image, in Slate units. */
	FVector2D ImageSize;

	/** Border of a nine-slice image, in parts of the image. */
	FMargin Margin;

	/** Colour that the image is multiplied by. */
	FSlateColor TintColor;

	/** How the brush fills an area. */
	TEnumAsByte<ESlateBrushDrawType::Type> DrawAs;

	/** How the image is repeated. */
	TEnumAsByte<ESlateBrushTileType::Type> Tiling;

	/** How the image is mirrored. */
	TEnumAsByte<ESlateBrushMirrorType::Type> Mirroring;

	/** What kind of image it is. */
	TEnumAsByte<ESlateBrushImageType::Type> ImageType;

	/** Makes a white image brush of no image, 32 by 32. */
	FSlateBrush();

	/** Destroys the brush. */
	virtual ~FSlateBrush() {}

	/** Returns the name of the image, usually a file path; NAME_None if there is none. */
	const FName GetResourceName() const { return ResourceName; }

	/** Returns the object that is the image, or null. */
	UObject* GetResourceObject() const { return ResourceObject; }

	/** Sets the object that is the image; the brush does not keep it alive. */
	void SetResourceObject(UObject* InResourceObject);

	/** Returns the size of the image. */
	FVector2D GetImageSize() const { return ImageSize; }

	/** Returns the margin. */
	const FMargin& GetMargin() const { return Margin; }

	/** Returns the tint under a widget style. */
	FLinearColor GetTint(const FWidgetStyle& InWidgetStyle) const { return TintColor.GetColor(InWidgetStyle); }

	/** Returns how the brush fills an area. */
	ESlateBrushDrawType::Type GetDrawType() const { return DrawAs; }

	/** Returns how the image is repeated. */
	ESlateBrushTileType::Type GetTiling() const { return Tiling; }

	/** Returns what kind of image it is. */
	ESlateBrushImageType::Type GetImageType() const { return ImageType; }

	/** Compares all fields. */
	bool operator==(const FSlateBrush& Other) const;

	/** Compares all fields. */
	bool operator!=(const FSlateBrush& Other) const { return !(*this == Other); }

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin,
		ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize,
		const FSlateColor& InTint = FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)), UObject* InObjectResource = nullptr);

	/** The name of the image. */
	FName ResourceName;

private:
	UObject* ResourceObject;
};
