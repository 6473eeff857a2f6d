// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/Picture.h"
#include "Misc/Optional.h"
#include "Widgets/SWindow.h"

#include <memory>

// Pictures of whole windows, with what lies above them.

namespace TintmillHost
{
/** What a picture of windows shows. */
struct FWindowShot
{
	/** The windows from the lowest to the topmost, painted by Slate already. */
	TArray<TSharedRef<SWindow>> Windows;

	/** The area of the desktop that is shown, in pixels of the desktop: its upper left corner and its size. */
	FIntPoint Origin = FIntPoint(0, 0);
	FIntPoint Size = FIntPoint(0, 0);

	/** Pixels of the picture a pixel of the desktop. */
	double Scale = 1.0;

	/** Where the mouse's arrow is drawn, if anywhere. */
	TOptional<FVector2D> Pointer;
};

/** Turns windows into pixels. Texts are measured for Slate by what paints them, as long as the painter lives. */
class IDesktopPainter
{
public:
	virtual ~IDesktopPainter() = default;

	/** Sets where pictures of viewports and of brushes that name no file come from. */
	virtual void SetPictures(FViewportPictures ViewportPictures, FBrushPictures BrushPictures) = 0;

	/** Paints windows one above the other; menus and tool tips throw a shadow. */
	virtual FPicture Paint(const FWindowShot& Shot) = 0;

	/**
	 * Does what Paint does in the one picture that Update filled last, which nobody else may change; returns the areas that were
	 * painted again because something there changed, all of the picture after a change of size.
	 */
	virtual TArray<FIntRect> Update(const FWindowShot& Shot, FPicture& InOutPicture) = 0;
};

/** The painter of this program; null where it was built without one. */
std::unique_ptr<IDesktopPainter> MakeDesktopPainter();
}
