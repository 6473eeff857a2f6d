// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostOptions.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/ProgramText.h"
#include "Host/Program/QuitRequest.h"
#include "Host/TourRun/RunAgain.h"

#include <iostream>

int main(int ArgumentCount, char** Arguments)
{
	const TintmillHost::FUtf8Console Console;
	const TintmillHost::FQuitRequest QuitRequest;
	const auto Parsed = TintmillHost::ParseCommandLine(TintmillHost::GetProgramArguments(ArgumentCount, Arguments));
	if (const auto* const Exit = std::get_if<TintmillHost::FHostExit>(&Parsed))
	{
		(Exit->Code == 0 ? std::cout : std::cerr) << Exit->Text;
		return Exit->Code;
	}
	int Code = 0;
	std::vector<std::string> ArgumentsToGoOn;
	{
		TintmillHost::FHostProgram Program(std::get<TintmillHost::FHostOptions>(Parsed));
		Code = Program.Run();
		ArgumentsToGoOn = Program.GetArgumentsToGoOn();
	}
	return ArgumentsToGoOn.empty() ? Code : TintmillHost::RunAgain(ArgumentsToGoOn);
}
