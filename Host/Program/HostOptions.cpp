// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostOptions.h"

#include "Host/Program/PathText.h"

#include <CLI/CLI.hpp>

namespace TintmillHost
{
namespace
{
constexpr int MinPaneLength = 16;
constexpr int MaxPaneLength = 8192;

/** "640x360" as two lengths in pixels. Throws CLI::ValidationError with a sentence when it is anything else. */
std::pair<int, int> ParseSize(const std::string& Option, const std::string& What, const std::string& Text)
{
	int Width = 0;
	int Height = 0;
	char Rest = 0;
	const bool bTwoNumbers = std::sscanf(Text.c_str(), "%5dx%5d%c", &Width, &Height, &Rest) == 2;
	if (!bTwoNumbers || Width < MinPaneLength || Height < MinPaneLength || Width > MaxPaneLength || Height > MaxPaneLength)
	{
		throw CLI::ValidationError(
			Option, "'" + Text + "' is not a size: give width and height of " + What + " in pixels, each from 16 to 8192, as in 640x360.");
	}
	return {Width, Height};
}
}

std::variant<FHostOptions, FHostExit> ParseCommandLine(const std::vector<std::string>& Arguments)
{
	FHostOptions Options;
	std::string Size = "640x360";
	std::string WindowSize = "1280x720";
	std::string Exec;
	std::string Project;
	std::string Tour;
	std::string Resume;
	std::string OutDir = PathToUtf8(Options.OutDir);

	CLI::App App("Opens a project of look files in an editor and shows its looks on the viewports.", "tintmill-editor");
	App.add_option("PROJECT,--project", Project, "Folder of look files, or a .uproject file; the demo project if left out");
	App.add_flag("--headless", Options.bHeadless, "Run without a window");
	App.add_flag(
		"--last-session", Options.bLastSession, "Without a window too, begin with the layout and map of the last session and keep them");
	CLI::Option* const ExecOption = App.add_option("--exec", Exec, "Console commands to run, separated by semicolons ('help' lists them)");
	App.add_option("--tour", Tour, "Tour file to play: console commands, one a line");
	App.add_flag("--help-tours", Options.bHelpTours, "Print how tours are written and all their commands, and end");
	App.add_flag("--times", Options.bTimes, "Print at the end how long the start and every command took");
	CLI::Option* const ResumeOption = App.add_option("--resume", Resume)->group("");
	App.add_option("--out", OutDir, "Folder for pictures and pages")->capture_default_str();
	App.add_option("--size", Size, "Size of one pane in pixels")->capture_default_str();
	CLI::Option* const WindowOption =
		App.add_option("--window", WindowSize, "Size of the editor's window in pixels")->capture_default_str();
	App.add_option(
		   "--scale", Options.Scale, "Pixels for a unit of the window's user interface, from 0.5 to 4; as the display asks for if left out")
		->check(CLI::Range(0.5, 4.0));
	App.add_flag("--list", Options.bList, "Print what is registered once everything has started, and end");

	try
	{
		std::vector<std::string> Reversed(Arguments.rbegin(), Arguments.rend());
		App.parse(std::move(Reversed));
		std::tie(Options.Width, Options.Height) = ParseSize("--size", "a pane", Size);
		std::tie(Options.WindowWidth, Options.WindowHeight) = ParseSize("--window", "the window", WindowSize);
	}
	catch (const CLI::CallForHelp&)
	{
		return FHostExit{0, App.help()};
	}
	catch (const CLI::ExtrasError&)
	{
		return FHostExit{2, "Unknown argument '" + App.remaining().front() + "': see tintmill-editor --help for what there is.\n"};
	}
	catch (const CLI::ParseError& Error)
	{
		return FHostExit{2, std::string(Error.what()) + "\n"};
	}

	Options.Project = PathFromUtf8(Project);
	Options.Tour = PathFromUtf8(Tour);
	Options.Resume = PathFromUtf8(Resume);
	Options.OutDir = PathFromUtf8(OutDir);
	Options.bWindowSizeGiven = WindowOption->count() > 0;
	Options.Arguments = Arguments;
	if (ResumeOption->count() > 0)
	{
		// The program itself adds the two at the end.
		Options.Arguments.resize(Options.Arguments.size() - 2);
	}
	if (ExecOption->count() > 0)
	{
		Options.Exec = Exec;
	}
	return Options;
}
}
