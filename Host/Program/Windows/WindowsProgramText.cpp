// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProgramText.h"

#include "Host/Program/PathText.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

namespace TintmillHost
{
std::vector<std::string> GetProgramArguments(int, char**)
{
	// Those of main have lost what the system's old code page does not have.
	std::vector<std::string> Utf8;
	int Count = 0;
	wchar_t** const Words = CommandLineToArgvW(GetCommandLineW(), &Count);
	for (int Index = 1; Words != nullptr && Index < Count; ++Index)
	{
		Utf8.push_back(PathToUtf8(Words[Index]));
	}
	LocalFree(Words);
	return Utf8;
}

FUtf8Console::FUtf8Console()
	: Before(GetConsoleOutputCP())
{
	SetConsoleOutputCP(CP_UTF8);
}

FUtf8Console::~FUtf8Console()
{
	if (Before != 0)
	{
		SetConsoleOutputCP(Before);
	}
}
}
