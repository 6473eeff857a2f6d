// Copyright The Tintmill authors. All rights reserved.

#include "Support/ProgramRun.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace
{
HANDLE ToHandle(std::intptr_t Value)
{
	return reinterpret_cast<HANDLE>(Value);
}

/** One word of a command line, such that the program's start code reads it as it was. */
std::wstring Quote(const std::wstring& Word)
{
	std::wstring Quoted = L"\"";
	size_t NumBackslashes = 0;
	for (const wchar_t Character : Word)
	{
		if (Character == L'"')
		{
			Quoted.append(NumBackslashes + 1, L'\\');
		}
		NumBackslashes = Character == L'\\' ? NumBackslashes + 1 : 0;
		Quoted += Character;
	}
	return Quoted + std::wstring(NumBackslashes, L'\\') + L"\"";
}
}

FRunningProgram::FRunningProgram(const std::filesystem::path& Program, const std::vector<std::string>& Arguments)
{
	SECURITY_ATTRIBUTES Inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
	HANDLE ItsInput = nullptr;
	HANDLE ItsOutput = nullptr;
	HANDLE OwnInput = nullptr;
	HANDLE OwnOutput = nullptr;
	if (!CreatePipe(&ItsInput, &OwnInput, &Inherited, 0))
	{
		return;
	}
	if (!CreatePipe(&OwnOutput, &ItsOutput, &Inherited, 0))
	{
		CloseHandle(ItsInput);
		CloseHandle(OwnInput);
		return;
	}
	SetHandleInformation(OwnInput, HANDLE_FLAG_INHERIT, 0);
	SetHandleInformation(OwnOutput, HANDLE_FLAG_INHERIT, 0);

	std::wstring Line = Quote(Program.native());
	for (const std::string& Argument : Arguments)
	{
		Line += L" " + Quote(std::filesystem::path(std::u8string(Argument.begin(), Argument.end())).native());
	}
	STARTUPINFOW Start = {};
	Start.cb = sizeof(Start);
	Start.dwFlags = STARTF_USESTDHANDLES;
	Start.hStdInput = ItsInput;
	Start.hStdOutput = ItsOutput;
	Start.hStdError = ItsOutput;
	PROCESS_INFORMATION Started = {};
	if (CreateProcessW(Program.c_str(), Line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Start, &Started))
	{
		CloseHandle(Started.hThread);
		Process = reinterpret_cast<std::intptr_t>(Started.hProcess);
	}
	CloseHandle(ItsInput);
	CloseHandle(ItsOutput);
	Input = reinterpret_cast<std::intptr_t>(OwnInput);
	Output = reinterpret_cast<std::intptr_t>(OwnOutput);
}

void FRunningProgram::CloseInput()
{
	if (Input != -1)
	{
		CloseHandle(ToHandle(Input));
		Input = -1;
	}
}

bool FRunningProgram::ReadSome()
{
	if (Output == -1)
	{
		return false;
	}
	char Buffer[4096];
	DWORD Count = 0;
	if (!ReadFile(ToHandle(Output), Buffer, sizeof(Buffer), &Count, nullptr) || Count == 0)
	{
		CloseHandle(ToHandle(Output));
		Output = -1;
		return false;
	}
	Printed.append(Buffer, Count);
	return true;
}

int FRunningProgram::WaitForCode()
{
	DWORD ExitCode = DWORD(-1);
	WaitForSingleObject(ToHandle(Process), INFINITE);
	GetExitCodeProcess(ToHandle(Process), &ExitCode);
	CloseHandle(ToHandle(Process));
	return static_cast<int>(ExitCode);
}
