// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that tell where something is on the screen, for programs that move the mouse of a window themselves.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds where. */
void AddPlaceCommands(FConsole& Console, FHostProgram& Program);
}
