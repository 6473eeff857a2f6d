// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/ConsoleRunner.h"

#include "Host/Console/CommandText.h"
#include "Host/Program/Strings.h"

#include "Misc/OutputDeviceRedirector.h"

#include <sstream>
#include <utility>

namespace TintmillHost
{
namespace
{
void Log(const TCHAR* Category, ELogVerbosity::Type Verbosity, const std::string& Text)
{
	GLog->Log(FName(Category), Verbosity, FromUtf8(Text));
}

void LogResponse(ELogVerbosity::Type Verbosity, const std::string& Text)
{
	std::istringstream Lines(Text);
	for (std::string Line; std::getline(Lines, Line);)
	{
		Log(TEXT("LogConsoleResponse"), Verbosity, Line);
	}
}
}

FConsoleRunner::FConsoleRunner(const FConsole& InConsole)
	: Console(InConsole)
{}

FConsoleLink FConsoleRunner::MakeLink()
{
	FConsoleLink Link;
	Link.Run = [this](const std::string& Line) { Entered.push_back(Line); };
	Link.ListCommands = [this] {
		std::vector<FConsoleHint> Hints;
		for (const auto& [Name, Command] : Console.GetCommands())
		{
			Hints.push_back({Name, Command.Usage, Command.Summary});
		}
		return Hints;
	};
	return Link;
}

void FConsoleRunner::RunEntered()
{
	if (bRunning)
	{
		return;
	}
	bRunning = true;
	for (const std::string& Line : std::exchange(Entered, {}))
	{
		RunLine(Line);
	}
	bRunning = false;
}

void FConsoleRunner::RunLine(const std::string& Line)
{
	Log(TEXT("Cmd"), ELogVerbosity::Log, Line);
	std::ostringstream Output;
	try
	{
		for (const auto& Command : SplitCommands(Line))
		{
			Console.Run(Command, Output);
		}
	}
	catch (const FCommandError& Error)
	{
		LogResponse(ELogVerbosity::Display, Output.str());
		LogResponse(ELogVerbosity::Error, Error.what());
		return;
	}
	LogResponse(ELogVerbosity::Display, Output.str());
}
}
