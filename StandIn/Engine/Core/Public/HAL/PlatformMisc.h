// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Small services of the operating system. Left out: hardware queries, message boxes, crash reporting.

/** Small services of the operating system. */
struct CORE_API FPlatformMisc
{
	/** Asks the program to end; forced, it ends at once with exit code 1 and without destructors. */
	static void RequestExit(bool bForce);

	/** Asks the program to end with an exit code (0 to 255); forced, it ends at once and without destructors. */
	static void RequestExitWithStatus(bool bForce, uint8 ReturnCode);

	/** The exit code that was last asked for, 0 when none was. */
	static uint8 GetRequestedReturnCode();

	/** Value of an environment variable, or "". */
	static FString GetEnvironmentVariable(const TCHAR* VariableName);

	/** Number of hardware threads, at least 1. */
	static int32 NumberOfCoresIncludingHyperthreads();

	/** Number of cores, at least 1; the number of hardware threads here. */
	static int32 NumberOfCores();

	/** The build tool's name of the platform: "Linux" or "Win64". */
	static const TCHAR* GetUBTPlatform();

	/** The platform's name in configuration folders: "Linux" or "Windows". */
	static const TCHAR* GetIniPlatform();
};
