// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/** How a program ended. */
struct FProgramResult
{
	/** The exit code; 128 and the signal's number when a signal ended it; -1 when it could not be started. */
	int Code = -1;

	/** Both streams as one text, with plain line ends. */
	std::string Output;
};

/** A program that runs beside the test; it is waited for at the latest when the object goes. */
class FRunningProgram
{
public:
	/** Starts a program; arguments are UTF-8. */
	FRunningProgram(const std::filesystem::path& Program, const std::vector<std::string>& Arguments);
	~FRunningProgram();

	FRunningProgram(const FRunningProgram&) = delete;
	FRunningProgram& operator=(const FRunningProgram&) = delete;

	/** Waits for the next line of what it prints, without the line's end; "" when it prints no more. */
	std::string ReadLine();

	/** The process: its number, on Windows its handle. */
	std::intptr_t GetProcess() const { return Process; }

	/** Ends its standard input. */
	void CloseInput();

	/** Ends its input, reads what it still prints, and waits for its end; Output has everything that it printed. */
	FProgramResult Wait();

private:
	/** Reads some more of what it prints; false at the end. */
	bool ReadSome();
	int WaitForCode();

	std::intptr_t Process = -1;
	std::intptr_t Input = -1;
	std::intptr_t Output = -1;
	std::string Printed;
	size_t NumRead = 0;
	int Code = -1;
};

/** Runs a program to its end. */
FProgramResult RunProgram(const std::filesystem::path& Program, const std::vector<std::string>& Arguments);

/** The words of a command line: separated by spaces, where '...' keeps spaces in a word. */
std::vector<std::string> SplitCommandLine(const std::string& Line);
