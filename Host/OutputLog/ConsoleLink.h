// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <functional>
#include <string>
#include <vector>

// What the console line of the output log talks to.

namespace TintmillHost
{
/** A command as the list of completions shows it. */
struct FConsoleHint
{
	std::string Name;

	/** The name with the words that follow it: "layout NAME". */
	std::string Usage;
	std::string Summary;
};

/** Where entered lines go, and the commands that there are; either may be empty. */
struct FConsoleLink
{
	std::function<void(const std::string& Line)> Run;
	std::function<std::vector<FConsoleHint>()> ListCommands;
};
}
