// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands about the run itself: title, chapter, wait, restart, keep-settings, times.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. */
void AddTourCommands(FConsole& Console, FHostProgram& Program);
}
