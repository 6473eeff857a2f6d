// Copyright The Tintmill authors. All rights reserved.

#include "Support/ProgramRun.h"

#include <algorithm>

FRunningProgram::~FRunningProgram()
{
	Wait();
}

std::string FRunningProgram::ReadLine()
{
	while (Printed.find('\n', NumRead) == std::string::npos && ReadSome())
	{}
	const size_t End = std::min(Printed.find('\n', NumRead), Printed.size());
	std::string Line = Printed.substr(NumRead, End - NumRead);
	NumRead = std::min(End + 1, Printed.size());
	Line.erase(std::remove(Line.begin(), Line.end(), '\r'), Line.end());
	return Line;
}

FProgramResult FRunningProgram::Wait()
{
	CloseInput();
	while (ReadSome())
	{}
	if (Process != -1)
	{
		Code = WaitForCode();
		Process = -1;
	}
	FProgramResult Result{Code, Printed};
	Result.Output.erase(std::remove(Result.Output.begin(), Result.Output.end(), '\r'), Result.Output.end());
	return Result;
}

FProgramResult RunProgram(const std::filesystem::path& Program, const std::vector<std::string>& Arguments)
{
	return FRunningProgram(Program, Arguments).Wait();
}

std::vector<std::string> SplitCommandLine(const std::string& Line)
{
	std::vector<std::string> Words;
	bool bInWord = false;
	bool bQuoted = false;
	for (const char Character : Line)
	{
		if (!bQuoted && Character == ' ')
		{
			bInWord = false;
			continue;
		}
		if (!bInWord)
		{
			Words.emplace_back();
			bInWord = true;
		}
		if (Character == '\'')
		{
			bQuoted = !bQuoted;
			continue;
		}
		Words.back() += Character;
	}
	return Words;
}
