// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/Console.h"

#include "Host/Console/CommandText.h"
#include "Host/Console/NearestWord.h"

#include <iomanip>
#include <utility>

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

FConsole::FGroup::FGroup(FConsole& InConsole, const std::string& Title)
	: Console(InConsole)
	, GroupBefore(std::exchange(InConsole.CurrentGroup, Title))
{}

FConsole::FGroup::~FGroup()
{
	Console.CurrentGroup = GroupBefore;
}

FConsole::FConsole()
{
	const FGroup Group(*this, "What there is");
	Add("help [COMMAND]", "list the commands, or explain one", {"help", "help shot"},
		[this](const FArguments& Words, std::ostream& Output) {
			if (Words.empty())
			{
				PrintHelp(Output);
			}
			else
			{
				PrintHelpFor(Words[0], Output);
			}
		});
}

void FConsole::Add(const std::string& Usage, const std::string& Summary, FCommandBody Body)
{
	Add(Usage, Summary, {}, std::move(Body));
}

void FConsole::Add(const std::string& Usage, const std::string& Summary, FCommandExamples Examples, FCommandBody Body)
{
	Commands[SplitWords(Usage).front()] = {Usage, Summary, CurrentGroup, std::move(Examples), std::move(Body)};
}

void FConsole::Run(std::string_view Command, std::ostream& Output) const
{
	FArguments Words = SplitWords(Command);
	if (Words.empty())
	{
		return;
	}
	FindFor(Command, Words).Body(Words, Output);
}

void FConsole::Check(std::string_view Command) const
{
	FArguments Words = SplitWords(Command);
	if (!Words.empty())
	{
		FindFor(Command, Words);
	}
}

void FConsole::PrintHelp(std::ostream& Output) const
{
	for (const auto& [Name, Command] : Commands)
	{
		Output << "  " << std::left << std::setw(40) << Command.Usage << Command.Summary << '\n';
	}
}

void FConsole::PrintHelpFor(const std::string& Name, std::ostream& Output) const
{
	const FConsoleCommand& Command = Find(Name);
	Output << "  " << Command.Usage << "\n      " << Command.Summary << '\n';
	for (const std::string& Example : Command.Examples)
	{
		Output << "        " << Example << '\n';
	}
}

const FConsoleCommand& FConsole::Find(const std::string& Name) const
{
	const auto Found = Commands.find(Name);
	if (Found != Commands.end())
	{
		return Found->second;
	}
	std::vector<std::string> Names;
	for (const auto& [Known, Command] : Commands)
	{
		Names.push_back(Known);
	}
	const std::string Nearest = FindNearestWord(Name, Names);
	throw FCommandError("There is no command '" + Name + "'"
		+ (Nearest.empty() ? "; there are " : "; did you mean " + Nearest + "? There are ") + NamesOfCommands() + ".");
}

const FConsoleCommand& FConsole::FindFor(std::string_view Command, FArguments& OutWords) const
{
	const FConsoleCommand& Found = Find(OutWords.front());
	OutWords.erase(OutWords.begin());
	const auto [Fewest, Most] = CountWords(Found.Usage);
	if (OutWords.size() < Fewest || OutWords.size() > Most)
	{
		throw FCommandError("'" + std::string(Command) + "' has the wrong number of words; the command is: " + Found.Usage + ".");
	}
	return Found;
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
