// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// The host's console: named commands with words as arguments. Tours, --exec and the window's console line all go through it.

namespace TintmillHost
{
/** A command could not be carried out; what() is one sentence for the user. */
class FCommandError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** The words after a command's name. */
using FArguments = std::vector<std::string>;

/** What a command does; prints to the stream, throws FCommandError when it cannot. */
using FCommandBody = std::function<void(const FArguments& Arguments, std::ostream& Output)>;

/** How a command is used: whole commands as one would type them. */
using FCommandExamples = std::vector<std::string>;

/** A command as help shows it and the console runs it. */
struct FConsoleCommand
{
	std::string Usage;
	std::string Summary;
	std::string Group;
	FCommandExamples Examples;
	FCommandBody Body;
};

/** The commands there are, and how one is run. */
class FConsole
{
public:
	/** While it lives, commands that are added belong to a group of this title. */
	class FGroup
	{
	public:
		FGroup(FConsole& InConsole, const std::string& Title);
		~FGroup();
		FGroup(const FGroup&) = delete;
		FGroup& operator=(const FGroup&) = delete;

	private:
		FConsole& Console;
		std::string GroupBefore;
	};

	FConsole();
	FConsole(const FConsole&) = delete;
	FConsole& operator=(const FConsole&) = delete;

	/** Adds a command. Usage is the line that help shows ("layout NAME"), its first word the command's name; Summary one phrase. */
	void Add(const std::string& Usage, const std::string& Summary, FCommandBody Body);

	/** The same with examples for help. */
	void Add(const std::string& Usage, const std::string& Summary, FCommandExamples Examples, FCommandBody Body);

	/** Runs one command. Throws FCommandError with a sentence when it is unknown, has too few or too many words, or fails. */
	void Run(std::string_view Command, std::ostream& Output) const;

	/** Throws FCommandError when Run would refuse the command before it does anything: an unknown name, a wrong number of words. */
	void Check(std::string_view Command) const;

	/** Prints every command with its summary, in alphabetical order. */
	void PrintHelp(std::ostream& Output) const;

	/** Prints one command with its summary and examples. Throws FCommandError when there is none of the name. */
	void PrintHelpFor(const std::string& Name, std::ostream& Output) const;

	/** All commands by their names. */
	const std::map<std::string, FConsoleCommand, std::less<>>& GetCommands() const { return Commands; }

private:
	const FConsoleCommand& Find(const std::string& Name) const;
	const FConsoleCommand& FindFor(std::string_view Command, FArguments& OutWords) const;
	std::string NamesOfCommands() const;

	std::map<std::string, FConsoleCommand, std::less<>> Commands;
	std::string CurrentGroup;
};
}
