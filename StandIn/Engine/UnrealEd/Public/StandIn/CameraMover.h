// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"
#include "Templates/Function.h"

class FEditorViewportClient;
class FViewport;

// Not in the engine: who has the cameras of the editor's viewports, which the stand-in has none of.

namespace StandIn
{
/**
 * Moves a client's camera by an axis of the mouse: EKeys::MouseX and MouseY in pixels, MouseWheelAxis in notches; or by any
 * other key or button, which has just been pressed, with a delta of 1. The viewport knows which ones are held. Says whether the
 * view changed.
 */
typedef TFunction<bool(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Key, float Delta)> FCameraMover;

/** Sets who moves cameras; with an empty one they stay. */
UNREALED_API void SetCameraMover(FCameraMover InMover);

/** Moves a client's camera; says whether the view changed. */
UNREALED_API bool MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Key, float Delta);
}
