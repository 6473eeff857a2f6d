// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The input events of viewport clients. Ticking, travel and view modes are left out.

/** What a key or a button did. */
enum EInputEvent
{
	IE_Pressed = 0,
	IE_Released = 1,
	IE_Repeat = 2,
	IE_DoubleClick = 3,
	IE_Axis = 4,
	IE_MAX = 5,
};
