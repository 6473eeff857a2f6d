// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/Console.h"

#include "Host/Console/CommandText.h"

#include <iomanip>

namespace TintmillHost
{
namespace
{
/** The fewest and the most words that a usage line such as "set PANE VALUE [MORE...]" takes after the name. */
std::pair<size_t, size_t> CountWords(const std::string& Usage)
{
	const std::vector<std::string> Words = SplitWords(Usage);
	size_t Fewest = 0;
	size_t Most = 0;
	for (size_t Index = 1; Index < Words.size(); ++Index)
	{
		Fewest += Words[Index].front() == '[' ? 0 : 1;
		Most = Words[Index].find("...") == std::string::npos ? Most + 1 : std::string::npos;
		if (Most == std::string::npos)
		{
			break;
		}
	}
	return {Fewest, Most};
}
}

FConsole::FConsole()
{
	Add("help", "list the commands", [this](const FArguments&, std::ostream& Output) { PrintHelp(Output); });
}

void FConsole::Add(const std::string& Usage, const std::string& Summary, FCommandBody Body)
{
	Commands[SplitWords(Usage).front()] = {Usage, Summary, std::move(Body)};
}

void FConsole::Run(std::string_view Command, std::ostream& Output) const
{
	FArguments Words = SplitWords(Command);
	if (Words.empty())
	{
		return;
	}

	const auto Found = Commands.find(Words.front());
	if (Found == Commands.end())
	{
		throw FCommandError("There is no command '" + Words.front() + "'; there are " + NamesOfCommands() + ".");
	}

	Words.erase(Words.begin());
	const auto [Fewest, Most] = CountWords(Found->second.Usage);
	if (Words.size() < Fewest || Words.size() > Most)
	{
		throw FCommandError("'" + std::string(Command) + "' has the wrong number of words; the command is: " + Found->second.Usage + ".");
	}
	Found->second.Body(Words, Output);
}

void FConsole::PrintHelp(std::ostream& Output) const
{
	for (const auto& [Name, Command] : Commands)
	{
		Output << "  " << std::left << std::setw(40) << Command.Usage << Command.Summary << '\n';
	}
}

std::string FConsole::NamesOfCommands() const
{
	std::string Names;
	for (const auto& [Name, Command] : Commands)
	{
		Names += (Names.empty() ? "" : ", ") + Name;
	}
	return Names;
}
}
