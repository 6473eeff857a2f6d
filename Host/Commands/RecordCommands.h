// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that show and change what a pane displays: record, set, looks.

namespace TintmillHost
{
class FConsole;

/** Adds the commands. */
void AddRecordCommands(FConsole& Console);
}
