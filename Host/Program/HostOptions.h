// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// What the command line of the host says. Pure: looks at nothing but the arguments.

namespace TintmillHost
{
/** What the user asked the program to do. */
struct FHostOptions
{
	/** Folder of the project to open; empty means the demo project. */
	std::filesystem::path Project;

	/** Run without a window. */
	bool bHeadless = false;

	/** Begin where the last session ended, and keep where this one goes, without a window too. */
	bool bLastSession = false;

	/** Folder for pictures and pages; created when the first one is written. */
	std::filesystem::path OutDir = "out";

	/** Console commands to run, separated by semicolons; unset means the default road of a headless run. */
	std::optional<std::string> Exec;

	/** Tour file to play; empty means none. */
	std::filesystem::path Tour;

	/** Print at the end how long the start and every command took. */
	bool bTimes = false;

	/** Print the commands of tours, and end. */
	bool bHelpTours = false;

	/** What another run of the same tour has left for this one to go on with; empty means none. */
	std::filesystem::path Resume;

	/** The arguments as they were given, without those about resuming. */
	std::vector<std::string> Arguments;

	/** Size of one pane's picture in pixels, as long as no window is open for the panes to fill. */
	int Width = 640;
	int Height = 360;

	/** Size of the editor's window in pixels. */
	int WindowWidth = 1280;
	int WindowHeight = 720;

	/** Whether that size was asked for; if not, a window on a display has the size that it had last. */
	bool bWindowSizeGiven = false;

	/** Pixels for a unit of the user interface in a window on a display; 0 for what the display asks for. */
	double Scale = 0.0;

	/** Print what is registered with the engine once everything has started, and end. */
	bool bList = false;
};

/** The program is to end without starting: what to print, and its exit code. */
struct FHostExit
{
	int Code = 0;
	std::string Text;
};

/** Reads the arguments, the program's name left out. A wrong one gives exit code 2 and one sentence. */
std::variant<FHostOptions, FHostExit> ParseCommandLine(const std::vector<std::string>& Arguments);
}
