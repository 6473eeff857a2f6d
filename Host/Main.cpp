// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostOptions.h"
#include "Host/Program/HostProgram.h"

#include <iostream>

int main(int ArgumentCount, char** Arguments)
{
	const auto Parsed = TintmillHost::ParseCommandLine(std::vector<std::string>(Arguments + 1, Arguments + ArgumentCount));
	if (const auto* const Exit = std::get_if<TintmillHost::FHostExit>(&Parsed))
	{
		(Exit->Code == 0 ? std::cout : std::cerr) << Exit->Text;
		return Exit->Code;
	}
	return TintmillHost::FHostProgram(std::get<TintmillHost::FHostOptions>(Parsed)).Run();
}
