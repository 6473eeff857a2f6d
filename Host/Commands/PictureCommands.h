// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands that draw panes and save their pictures: draw, picture, pictures.

namespace TintmillHost
{
class FConsole;
class FHostProgram;

/** Adds the commands; the program must outlive the console. */
void AddPictureCommands(FConsole& Console, FHostProgram& Program);
}
