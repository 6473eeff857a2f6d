// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>

// The editor in a window on a display.

namespace TintmillHost
{
class FHostProgram;

/** Whether a display can be opened; if not, OutWhy says why in one sentence. */
bool FindDisplay(std::string& OutWhy);

/** Shows the program's window until it is closed in any way. Returns the exit code: 0, or 2 when the window could not be opened. */
int RunInWindow(FHostProgram& Program);
}
