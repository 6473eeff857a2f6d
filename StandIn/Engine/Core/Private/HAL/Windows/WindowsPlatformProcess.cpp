// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformProcess.h"

#include "CoreGlobals.h"

#include <vector>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

void* FPlatformProcess::GetDllHandle(const TCHAR* Filename)
{
	check(Filename);
	// The altered search path lets a module find libraries beside itself.
	HMODULE Handle = LoadLibraryExW(Filename, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
	if (!Handle)
	{
		const uint32 Error = GetLastError();
		UE_LOG(LogCore, Warning, TEXT("Failed to load '%s' (GetLastError=%d)"), Filename, int32(Error));
	}
	return Handle;
}

void FPlatformProcess::FreeDllHandle(void* DllHandle)
{
	check(DllHandle);
	FreeLibrary(static_cast<HMODULE>(DllHandle));
}

void* FPlatformProcess::GetDllExport(void* DllHandle, const TCHAR* ProcName)
{
	check(DllHandle);
	check(ProcName);
	std::vector<char> Name;
	for (const TCHAR* At = ProcName; *At; ++At)
	{
		Name.push_back(char(*At));
	}
	Name.push_back('\0');
	return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(DllHandle), Name.data()));
}

const TCHAR* FPlatformProcess::ExecutablePath()
{
	static const FString Path = [] {
		wchar_t Buffer[4096] = {};
		GetModuleFileNameW(nullptr, Buffer, 4095);
		FString Found(Buffer);
		Found.ReplaceInline(TEXT("\\"), TEXT("/"));
		return Found;
	}();
	return *Path;
}

const TCHAR* FPlatformProcess::GetModulePrefix()
{
	return TEXT("");
}

const TCHAR* FPlatformProcess::GetModuleExtension()
{
	return TEXT("dll");
}

const TCHAR* FPlatformProcess::GetBinariesSubdirectory()
{
	return TEXT("Win64");
}

uint32 FPlatformProcess::GetCurrentProcessId()
{
	return ::GetCurrentProcessId();
}

bool FPlatformProcess::IsApplicationRunning(uint32 ProcessId)
{
	HANDLE Process = OpenProcess(SYNCHRONIZE, FALSE, ProcessId);
	if (!Process)
	{
		return GetLastError() == ERROR_ACCESS_DENIED;
	}
	const bool bRunning = WaitForSingleObject(Process, 0) == WAIT_TIMEOUT;
	CloseHandle(Process);
	return bRunning;
}
