// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/IntPoint.h"

// The size of the window on the display, kept with the project.

namespace TintmillHost
{
/** The size in pixels that the window had last; Otherwise if it has not been open yet. */
FIntPoint RestoreWindowSize(const FIntPoint& Otherwise);

/** Keeps the size. */
void KeepWindowSize(const FIntPoint& Size);
}
