// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProgramText.h"

namespace TintmillHost
{
std::vector<std::string> GetProgramArguments(int ArgumentCount, char** Arguments)
{
	return std::vector<std::string>(Arguments + (ArgumentCount > 0 ? 1 : 0), Arguments + ArgumentCount);
}

FUtf8Console::FUtf8Console()
{
	// Consoles show UTF-8 here.
	(void)Before;
}

FUtf8Console::~FUtf8Console() = default;
}
