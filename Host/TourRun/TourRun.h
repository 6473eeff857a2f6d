// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Gallery/GalleryPage.h"
#include "Host/TourRun/KeptSettings.h"
#include "Host/TourRun/Tour.h"
#include "Host/TourRun/TourFiles.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

// Carrying out a tour.

namespace TintmillHost
{
class FConsole;
class FHostLog;

/** What surrounds a tour while it is carried out. */
struct FTourListener
{
	/** Called after each command that was carried out, before it is noted on the page. */
	std::function<void(const FGalleryCommand& Command)> OnDone;

	/** Called when a command has failed, before it is noted on the page. */
	std::function<void(const FGalleryCommand& Command)> OnProblem;

	/** Whether the tour is to end before its next command because the program has been asked to. */
	std::function<bool()> ShouldEnd;
};

/** Carries out the commands of one tour and keeps what its page tells: commands, times, output, log. */
class FTourRun
{
public:
	FTourRun(const FConsole& InConsole, FGalleryPage& InPage, const FHostLog& InLog);

	/** Sets who hears of the commands. */
	void SetListener(FTourListener InListener) { Listener = std::move(InListener); }

	/** Carries out commands from the next one on, until the last one, one that fails, or a restart. A tour with a name reports each
	 * command on Errors as it begins, once half a second has gone. Returns false, with one sentence on Errors, if a command failed. */
	bool Play(const FTour& Tour, std::ostream& Output, std::ostream& Errors);

	/** Ends the tour after the command that runs; another run of the program goes on with it. */
	void AskForRestart() { bWantsRestart = true; }

	/** Whether commands are being carried out. */
	bool IsPlaying() const { return bPlaying; }

	/** Whether another run is to go on. */
	bool WantsRestart() const { return bWantsRestart; }

	/** The commands carried out so far. */
	const std::vector<FGalleryCommand>& GetCommands() const { return Commands; }

	/** The log with the commands and their output where they were run. */
	std::vector<FGalleryLogLine> MakeLog() const;

	/** The settings that are put back in the end. */
	FKeptSettings& GetKeptSettings() { return KeptSettings; }

	/** The files that are taken away in the end. */
	FTourFiles& GetFiles() { return Files; }

	/** Writes everything that the run which goes on needs, and leaves it to that run. */
	void HandOver(std::ostream& Stream);

	/** Goes on where another run ended; false if the stream holds something else. */
	bool TakeOver(std::istream& Stream);

private:
	/** Lines of the page's log that stand before a line of the host's log. */
	struct FAddedLine
	{
		size_t LogIndex;
		FGalleryLogLine Line;
	};

	bool PlayCommands(const FTour& Tour, std::ostream& Output, std::ostream& Errors);
	bool RunCommand(const FTour& Tour, size_t Index, std::ostream& Output, std::ostream& Errors);
	void AddLine(const std::string& Kind, const std::string& Text);

	const FConsole& Console;
	FGalleryPage& Page;
	const FHostLog& Log;
	FTourListener Listener;
	FKeptSettings KeptSettings;
	FTourFiles Files;
	std::vector<FGalleryCommand> Commands;
	std::vector<FAddedLine> AddedLines;
	std::vector<FGalleryLogLine> EarlierLog;
	size_t NextCommand = 0;
	bool bPlaying = false;
	bool bWantsRestart = false;
};
}
