// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The menus of a level viewport's toolbar other than View, under their names as tool menus.

namespace LevelViewportMenus
{
/** Name of the menu of the first button. */
FName GetOptionsName();

/** Name of the menu of the camera's button. */
FName GetCameraName();

/** Name of the menu of the show flags' button. */
FName GetShowName();

/** Registers the menus that are not registered yet. */
void Register();
}
