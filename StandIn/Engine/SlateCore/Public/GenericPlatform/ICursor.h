// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Shapes of the mouse cursor. The engine has this header in its ApplicationCore module.

namespace EMouseCursor
{
/** A shape of the mouse cursor. */
enum Type
{
	None,
	Default,
	TextEditBeam,
	ResizeLeftRight,
	ResizeUpDown,
	ResizeSouthEast,
	ResizeSouthWest,
	CardinalCross,
	Crosshairs,
	Hand,
	GrabHand,
	GrabHandClosed,
	SlashedCircle,
	EyeDropper,
	Custom,
	TotalCursorCount
};
}
