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

/** The commands there are, and how one is run. */
class FConsole
{
public:
	FConsole();

	/** Adds a command. Usage is the line that help shows ("layout NAME"), its first word the command's name; Summary one phrase. */
	void Add(const std::string& Usage, const std::string& Summary, FCommandBody Body);

	/** Runs one command. Throws FCommandError with a sentence when it is unknown, has too few or too many words, or fails. */
	void Run(std::string_view Command, std::ostream& Output) const;

	/** Prints every command with its summary, in alphabetical order. */
	void PrintHelp(std::ostream& Output) const;

private:
	struct FCommand
	{
		std::string Usage;
		std::string Summary;
		FCommandBody Body;
	};

	std::string NamesOfCommands() const;

	std::map<std::string, FCommand, std::less<>> Commands;
};
}
