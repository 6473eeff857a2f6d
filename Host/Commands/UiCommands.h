// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that use the window as a person does, by what is written on it: open, hover, click, click-box, click-pane, type, press,
// close-menus, window, shot, expect.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. The first of them that is run opens the window. */
void AddUiCommands(FConsole& Console, FHostProgram& Program);
}
