// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands for look assets: open-look, new-look, describe-look, and the look builder's windows: builders, hover-builder,
// click-builder, zoom-builder, shot-builder, close-builders.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. */
void AddAssetCommands(FConsole& Console, FHostProgram& Program);
}
