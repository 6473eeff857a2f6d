// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Console/Console.h"
#include "Host/OutputLog/ConsoleLink.h"

#include <string>
#include <vector>

// Runs what was entered in the window, between frames: a command may move the mouse or run frames itself, so it cannot run
// within the event that entered it.

namespace TintmillHost
{
/** Keeps entered lines until their time has come; what commands print goes into the log, complaints as errors. */
class FConsoleRunner
{
public:
	/** The console must outlive the runner. */
	explicit FConsoleRunner(const FConsole& InConsole);

	/** What the output log is given; the runner must outlive it. */
	FConsoleLink MakeLink();

	/** Runs the lines that were entered since the last time; does nothing while it is running some. For between two frames. */
	void RunEntered();

private:
	void RunLine(const std::string& Line);

	const FConsole& Console;
	std::vector<std::string> Entered;
	bool bRunning = false;
};
}
