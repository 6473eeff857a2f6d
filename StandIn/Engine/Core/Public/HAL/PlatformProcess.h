// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Shared libraries and facts about the running process. Left out: starting other processes, threads, semaphores.

/** Shared libraries and facts about the running process. */
struct CORE_API FPlatformProcess
{
	/** Maps a shared library with all its symbols resolved and kept local; null on failure, with a LogCore warning that says why. */
	static void* GetDllHandle(const TCHAR* Filename);

	/** Releases a handle of GetDllHandle; the library is unmapped with its last handle. */
	static void FreeDllHandle(void* DllHandle);

	/** The address of an exported function, or null. */
	static void* GetDllExport(void* DllHandle, const TCHAR* ProcName);

	/** Full path of the running program. */
	static const TCHAR* ExecutablePath();

	/** File name of the running program, by default without extension. */
	static const TCHAR* ExecutableName(bool bRemoveExtension = true);

	/** Folder of the running program with a trailing slash. */
	static const TCHAR* BaseDir();

	/** What a module's file name starts with: "lib" or "". */
	static const TCHAR* GetModulePrefix();

	/** A module's file extension without the dot: "so" or "dll". */
	static const TCHAR* GetModuleExtension();

	/** Name of the folder below Binaries: "Linux" or "Win64". */
	static const TCHAR* GetBinariesSubdirectory();

	/** Number of the running process. */
	static uint32 GetCurrentProcessId();

	/** Says whether a process with this number runs. */
	static bool IsApplicationRunning(uint32 ProcessId);

	/** Folder for temporary files with a trailing slash. */
	static const TCHAR* UserTempDir();

	/** The working directory with a trailing slash. */
	static FString GetCurrentWorkingDirectory();

	/** Lets the calling thread rest for so many seconds. */
	static void Sleep(float Seconds);
};
