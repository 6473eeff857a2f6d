// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class FViewportClient;

// Not in the engine: where the picture of a viewport comes from before any pass works on it. FViewport::Draw asks the
// painter once for a client and a size and keeps the picture until the viewport is invalidated, its client or its size
// changes, or the painter is replaced.

namespace StandIn
{
/** Paints what a client sees: Size.X * Size.Y pixels, row-major from the top left, 8-bit sRGB, the alpha as it shall be read back. */
typedef TFunction<void(FViewportClient& Client, const FIntPoint& Size, FColor* Pixels)> FScenePainter;

/** Sets the painter of all viewports; an empty one leaves a plain dark grey with alpha 0, as an empty scene does. */
ENGINE_API void SetScenePainter(FScenePainter InPainter);

/** Paints a client's scene with the present painter. */
ENGINE_API void PaintScene(FViewportClient& Client, const FIntPoint& Size, FColor* Pixels);

/** Returns a number that changes with each SetScenePainter. */
ENGINE_API uint32 GetScenePainterGeneration();
}
