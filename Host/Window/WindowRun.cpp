// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowRun.h"

namespace TintmillHost
{
bool FindDisplay(std::string& OutWhy)
{
	OutWhy = "Windows cannot be opened yet.";
	return false;
}

int RunInWindow(FHostProgram&)
{
	return 2;
}
}
