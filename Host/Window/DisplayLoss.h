// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <SDL.h>

// The display may go away while the program runs; without this its library would end the program on the spot.

namespace TintmillHost
{
/** Has errors of single requests passed over instead of ending the program; to be called before the window system is opened. */
void PassOverDisplayErrors();

/** Has the loss of the window's display noted instead of ending the program, where the window system knows such a thing. */
void WatchDisplay(SDL_Window* Window);

/** Whether the display went away. */
bool IsDisplayLost();
}
