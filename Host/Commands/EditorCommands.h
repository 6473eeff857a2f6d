// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that work the level editor: layout, activate, panes, tick.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. */
void AddEditorCommands(FConsole& Console, FHostProgram& Program);
}
