// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Console/CommandText.h"

#include <filesystem>
#include <string>
#include <vector>

// A tour: console commands in a file, one a line.

namespace TintmillHost
{
/** Commands to be carried out one after the other. */
struct FTour
{
	/** The file as the user named it; empty for commands that stand in no file. */
	std::string Name;

	std::vector<FNumberedCommand> Commands;

	/** "Host/Tours/menu.tour:12" for a command, "" where the commands stand in no file. */
	std::string GetPlace(size_t Index) const;
};

/** Commands of a file's text: one a line, so that captions may hold semicolons. */
FTour MakeTour(const std::string& Name, const std::string& Text);

/** Commands that stand in no file, parted by semicolons or lines. */
FTour MakeTourOfCommands(const std::string& Text);

/** Reads a tour file. Returns an empty string, or one sentence why it could not. */
std::string ReadTour(const std::filesystem::path& File, FTour& OutTour);

/** A path as people would type it: relative to the current folder if it lies below it. */
std::string ShortenPath(const std::filesystem::path& File);
}
