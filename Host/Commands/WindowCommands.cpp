// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/WindowCommands.h"

#include "Host/Program/HostProgram.h"

namespace TintmillHost
{
FWindowCommands::FWindowCommands(FConsole& InConsole, FHostProgram& InProgram)
	: Console(InConsole)
	, Program(InProgram)
{}

void FWindowCommands::Add(const std::string& Usage, const std::string& Summary, FCommandExamples Examples, FCommandBody Body) const
{
	FHostProgram* const Owner = &Program;
	Console.Add(Usage, Summary, std::move(Examples), [Owner, Body = std::move(Body)](const FArguments& Words, std::ostream& Output) {
		Owner->GetWindow();
		Body(Words, Output);
	});
}
}
