// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that save pictures of the window: shot, shot-looks, film.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. The first of them that is run opens the window. */
void AddShotCommands(FConsole& Console, FHostProgram& Program);
}
