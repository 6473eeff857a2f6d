// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that list what the editor holds: registered, notices, settings.

namespace TintmillHost
{
class FConsole;

/** Adds the commands. */
void AddListCommands(FConsole& Console);
}
