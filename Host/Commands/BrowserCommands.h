// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands for what the content browser has beside tiles, which the commands for labels find: its folders, the space beside the tiles,
// and what is selected and marked.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. The first of them that is run opens the window. */
void AddBrowserCommands(FConsole& Console, FHostProgram& Program);
}
