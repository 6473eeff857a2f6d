// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/DisplayLoss.h"

namespace TintmillHost
{
void PassOverDisplayErrors() {}

void WatchDisplay(SDL_Window*) {}

bool IsDisplayLost()
{
	return false;
}
}
