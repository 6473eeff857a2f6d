// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourRun.h"

#include "Host/Console/Console.h"
#include "Host/Gallery/Packing.h"
#include "Host/Program/HostLog.h"

#include <chrono>
#include <sstream>

namespace TintmillHost
{
namespace
{
using FClock = std::chrono::steady_clock;

/** Tours that are over sooner need no report of their progress. */
constexpr double QuietSeconds = 0.5;

double SecondsSince(FClock::time_point Start)
{
	return std::chrono::duration<double>(FClock::now() - Start).count();
}

std::string NameKind(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity)
	{
	case ELogVerbosity::Fatal:
	case ELogVerbosity::Error:
		return "error";
	case ELogVerbosity::Warning:
		return "warning";
	case ELogVerbosity::Display:
		return "display";
	case ELogVerbosity::Log:
		return "log";
	default:
		return "verbose";
	}
}

void SaveCommand(std::ostream& Stream, const FGalleryCommand& Command)
{
	PackText(Stream, Command.Place);
	PackText(Stream, Command.Text);
	PackNumber(Stream, Command.Seconds);
	PackText(Stream, Command.Problem);
}

FGalleryCommand LoadCommand(std::istream& Stream)
{
	FGalleryCommand Command;
	Command.Place = UnpackText(Stream);
	Command.Text = UnpackText(Stream);
	Command.Seconds = UnpackNumber(Stream);
	Command.Problem = UnpackText(Stream);
	return Command;
}
}

FTourRun::FTourRun(const FConsole& InConsole, FGalleryPage& InPage, const FHostLog& InLog)
	: Console(InConsole)
	, Page(InPage)
	, Log(InLog)
{}

bool FTourRun::Play(const FTour& Tour, std::ostream& Output, std::ostream& Errors)
{
	bPlaying = true;
	const bool bDone = PlayCommands(Tour, Output, Errors);
	bPlaying = false;
	return bDone;
}

std::vector<FGalleryLogLine> FTourRun::MakeLog() const
{
	std::vector<FGalleryLogLine> Lines = EarlierLog;
	size_t Added = 0;
	const std::vector<FLogLine>& LogLines = Log.GetLines();
	for (size_t Index = 0; Index <= LogLines.size(); ++Index)
	{
		for (; Added < AddedLines.size() && AddedLines[Added].LogIndex == Index; ++Added)
		{
			Lines.push_back(AddedLines[Added].Line);
		}
		if (Index < LogLines.size())
		{
			Lines.push_back({NameKind(LogLines[Index].Verbosity), LogLines[Index].Text});
		}
	}
	return Lines;
}

void FTourRun::HandOver(std::ostream& Stream)
{
	PackNumber(Stream, static_cast<double>(NextCommand));
	PackNumber(Stream, static_cast<double>(Commands.size()));
	for (const FGalleryCommand& Command : Commands)
	{
		SaveCommand(Stream, Command);
	}
	const std::vector<FGalleryLogLine> Lines = MakeLog();
	PackNumber(Stream, static_cast<double>(Lines.size()));
	for (const FGalleryLogLine& Line : Lines)
	{
		PackText(Stream, Line.Kind);
		PackText(Stream, Line.Text);
	}
	KeptSettings.Save(Stream);
	Files.HandOver(Stream);
	Page.Save(Stream);
}

bool FTourRun::TakeOver(std::istream& Stream)
{
	NextCommand = static_cast<size_t>(UnpackNumber(Stream));
	const double CommandCount = UnpackNumber(Stream);
	for (double Index = 0.0; Stream && Index < CommandCount; ++Index)
	{
		Commands.push_back(LoadCommand(Stream));
	}
	const double LineCount = UnpackNumber(Stream);
	for (double Index = 0.0; Stream && Index < LineCount; ++Index)
	{
		FGalleryLogLine Line;
		Line.Kind = UnpackText(Stream);
		Line.Text = UnpackText(Stream);
		EarlierLog.push_back(std::move(Line));
	}
	KeptSettings.Load(Stream);
	Files.TakeOver(Stream);
	return Page.Load(Stream);
}

bool FTourRun::PlayCommands(const FTour& Tour, std::ostream& Output, std::ostream& Errors)
{
	const FClock::time_point Start = FClock::now();
	while (NextCommand < Tour.Commands.size() && !bWantsRestart)
	{
		if (Listener.ShouldEnd && Listener.ShouldEnd())
		{
			return true;
		}
		const size_t Index = NextCommand++;
		if (!Tour.Name.empty() && SecondsSince(Start) >= QuietSeconds)
		{
			Errors << '[' << Index + 1 << '/' << Tour.Commands.size() << "] " << Tour.Commands[Index].Text << std::endl;
		}
		if (!RunCommand(Tour, Index, Output, Errors))
		{
			return false;
		}
	}
	return true;
}

bool FTourRun::RunCommand(const FTour& Tour, size_t Index, std::ostream& Output, std::ostream& Errors)
{
	FGalleryCommand Command;
	Command.Place = Tour.GetPlace(Index);
	Command.Text = Tour.Commands[Index].Text;
	AddLine("command", Command.Text);

	std::ostringstream Printed;
	const FClock::time_point Start = FClock::now();
	try
	{
		Console.Run(Command.Text, Printed);
	}
	catch (const std::exception& Error)
	{
		Command.Problem = Error.what();
	}
	Command.Seconds = SecondsSince(Start);

	Output << Printed.str() << std::flush;
	AddLine("output", Printed.str());
	if (!Command.Problem.empty())
	{
		const std::string Complaint = (Command.Place.empty() ? "" : Command.Place + ": ") + Command.Problem;
		Errors << Complaint << std::endl;
		AddLine("error", Complaint);
	}
	const auto& Hear = Command.Problem.empty() ? Listener.OnDone : Listener.OnProblem;
	if (Hear)
	{
		Hear(Command);
	}
	Commands.push_back(Command);
	Page.NoteCommand(Command);
	return Command.Problem.empty();
}

void FTourRun::AddLine(const std::string& Kind, const std::string& Text)
{
	std::istringstream Lines(Text);
	for (std::string Line; std::getline(Lines, Line);)
	{
		AddedLines.push_back({Log.GetLines().size(), {Kind, Line}});
	}
}
}
