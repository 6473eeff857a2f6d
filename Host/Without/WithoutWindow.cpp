// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowRun.h"

// The program built without a window, where its library is not at hand.

namespace TintmillHost
{
bool FindDisplay(std::string& OutWhy)
{
	OutWhy = "This program was built without the library that windows are opened with.";
	return false;
}

int RunInWindow(FHostProgram&)
{
	return 2;
}
}
