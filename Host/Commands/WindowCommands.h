// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Console/Console.h"

#include <string>

// Commands that need the window.

namespace TintmillHost
{
class FHostProgram;

/** Adds commands that open the window before they do anything else. */
class FWindowCommands
{
public:
	FWindowCommands(FConsole& InConsole, FHostProgram& InProgram);

	/** Adds a command as the console does. */
	void Add(const std::string& Usage, const std::string& Summary, FCommandExamples Examples, FCommandBody Body) const;

private:
	FConsole& Console;
	FHostProgram& Program;
};
}
