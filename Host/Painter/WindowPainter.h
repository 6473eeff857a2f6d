// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ElementPainter.h"
#include "Host/Picture/PngFile.h"
#include "Misc/Optional.h"
#include "Widgets/SWindow.h"

// Pictures of whole windows, with what lies above them.

namespace TintmillHost
{
/** What a picture of windows shows. */
struct FWindowShot
{
	/** The windows from the lowest to the topmost, painted by Slate already. */
	TArray<TSharedRef<SWindow>> Windows;

	/** The area of the desktop that is shown, from its upper left corner, in pixels of the desktop. */
	FIntPoint Size = FIntPoint(0, 0);

	/** Pixels of the picture a pixel of the desktop. */
	double Scale = 1.0;

	/** Where the mouse's arrow is drawn, if anywhere. */
	TOptional<FVector2D> Pointer;
};

/** Paints windows one above the other; menus and tool tips throw a shadow. */
FPicture PaintWindows(FElementPainter& Painter, const FWindowShot& Shot);
}
