// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/RunAgain.h"

#include "Host/Program/PathText.h"

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <windows.h>

namespace TintmillHost
{
namespace
{
/** A word as a command line holds it: in quotation marks, those within and the backslashes before them marked. */
std::wstring Quote(const std::wstring& Word)
{
	std::wstring Result = L"\"";
	size_t Backslashes = 0;
	for (const wchar_t Character : Word)
	{
		if (Character == L'"')
		{
			Result.append(Backslashes + 1, L'\\');
		}
		Backslashes = Character == L'\\' ? Backslashes + 1 : 0;
		Result += Character;
	}
	Result.append(Backslashes, L'\\');
	return Result + L"\"";
}
}

int RunAgain(const std::vector<std::string>& Arguments)
{
	wchar_t Program[MAX_PATH * 4] = {};
	GetModuleFileNameW(nullptr, Program, static_cast<DWORD>(std::size(Program) - 1));
	std::wstring Line = Quote(Program);
	for (const std::string& Argument : Arguments)
	{
		Line += L" " + Quote(PathFromUtf8(Argument).native());
	}
	std::cout.flush();
	std::fflush(nullptr);
	STARTUPINFOW Startup = {};
	Startup.cb = sizeof(Startup);
	PROCESS_INFORMATION Process = {};
	if (!CreateProcessW(Program, Line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Startup, &Process))
	{
		std::cerr << "The program cannot be started anew: error " << GetLastError() << ".\n";
		return 2;
	}
	WaitForSingleObject(Process.hProcess, INFINITE);
	DWORD Code = 2;
	GetExitCodeProcess(Process.hProcess, &Code);
	CloseHandle(Process.hThread);
	CloseHandle(Process.hProcess);
	return static_cast<int>(Code);
}
}
