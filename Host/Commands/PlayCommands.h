// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands for play and for maps: play, simulate, stop, playing, camera, map.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. */
void AddPlayCommands(FConsole& Console, FHostProgram& Program);
}
