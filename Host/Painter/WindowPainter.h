// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ElementPainter.h"
#include "Host/Picture/IDesktopPainter.h"

// Pictures of whole windows, with what lies above them.

namespace TintmillHost
{
/** Paints windows one above the other; menus and tool tips throw a shadow. */
FPicture PaintWindows(FElementPainter& Painter, const FWindowShot& Shot);
}
