// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Facts about the running program and its clock. Left out: instances, build targets, sound, benchmarking.

/** Facts about the running program and its clock. */
class CORE_API FApp
{
public:
	/** The project's name, or "". */
	static const TCHAR* GetProjectName();
	/** Sets the project's name, at most 63 characters. */
	static void SetProjectName(const TCHAR* InProjectName);
	/** Says whether the project has a name. */
	static bool HasProjectName();
	/** The name of the program as people know it. */
	static FString GetName();

	/** Says that nobody is there to answer questions. */
	static bool IsUnattended();
	/** Sets whether nobody is there to answer questions; `-unattended` does it too. */
	static void SetUnattended(bool bInUnattended);
	/** Says whether pictures can be made; always. */
	static bool CanEverRender() { return true; }

	/** Seconds of the current frame's time. */
	static double GetCurrentTime();
	static void SetCurrentTime(double Seconds);
	/** Seconds between the last frame and this one. */
	static double GetDeltaTime();
	static void SetDeltaTime(double Seconds);
};
