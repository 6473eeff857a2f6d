// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

// Starting the program anew.

namespace TintmillHost
{
/** Starts this program with other arguments in place of the process that runs, or waits for it where that cannot be; then returns its
 * exit code. Returns 2, with one sentence on the standard error stream, when it cannot be started. */
int RunAgain(const std::vector<std::string>& Arguments);
}
