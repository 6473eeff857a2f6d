// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Scene/SceneCamera.h"

class FViewport;
struct FKey;

// How the mouse moves a pane's camera, as in the 4.27 editor. In a perspective: the right button looks around, the left one walks
// and turns, the middle one, or left and right together, moves across; with Alt the left button goes around what is looked at, the
// right one goes nearer. In flat views the right button moves the picture, and both together go nearer. The wheel goes nearer
// everywhere.

namespace TintmillHost
{
/** What a person holds down while the mouse moves. */
struct FPaneButtons
{
	bool bLeft = false;
	bool bMiddle = false;
	bool bRight = false;
	bool bAlt = false;
};

/** The buttons and keys that went down in a viewport. */
FPaneButtons GetPaneButtons(const FViewport& Viewport);

/** Moves a camera by a drag in pixels, to the right and upwards, in a pane of a width in pixels. Returns whether the buttons mean anything to it. */
bool DragPaneCamera(FSceneCamera& InOutCamera, const FPaneButtons& Buttons, const FVector2D& Pixels, int32 PaneWidth);

/** Goes nearer by notches of the wheel, away for negative ones. Returns whether it can. */
bool ZoomPaneCamera(FSceneCamera& InOutCamera, float Notches);

/** Looks at what the scene is about, from where the camera stands as far as that goes. Returns whether it can. */
bool FramePaneCamera(FSceneCamera& InOutCamera);

/** Tells clicks from drags: a mouse that moved a little while a button was held has not been dragged. */
class FPaneDrag
{
public:
	/** A button went down: what is moved from now on counts. */
	void Begin()
	{
		Moved = FVector2D(0.0f, 0.0f);
		bDragging = false;
	}

	/** Takes a movement in pixels and returns what of it is a drag: nothing at first, later also what came before. */
	FVector2D Take(const FVector2D& Pixels);

private:
	/** What was moved since the button went down, as long as that is no drag. */
	FVector2D Moved = FVector2D(0.0f, 0.0f);
	bool bDragging = false;
};
}
