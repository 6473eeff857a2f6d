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
 * Moves a client's camera by an axis of the mouse: EKeys::MouseX and MouseY in pixels, MouseWheelAxis in notches. The viewport
 * knows which buttons are held. Says whether it moved.
 */
typedef TFunction<bool(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Axis, float Delta)> FCameraMover;

/** Sets who moves cameras; with an empty one they stay. */
UNREALED_API void SetCameraMover(FCameraMover InMover);

/** Moves a client's camera; says whether it moved. */
UNREALED_API bool MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Axis, float Delta);
}
