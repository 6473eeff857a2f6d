// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <ostream>

// What --help-tours prints.

namespace TintmillHost
{
class FConsole;

/** Prints how a tour file is written and every command of the console, by groups, with its summary and examples. */
void PrintTourHelp(const FConsole& Console, std::ostream& Output);
}
