// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that put files into the project's content folder for as long as a tour runs: write-file, copy-file, remove-file.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. */
void AddFileCommands(FConsole& Console, FHostProgram& Program);
}
