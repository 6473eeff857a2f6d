// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands for what else a mouse can do: other buttons, double clicks, modifier keys, drags, the wheel, and places without a label.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. The first of them that is run opens the window. */
void AddMouseCommands(FConsole& Console, FHostProgram& Program);
}
