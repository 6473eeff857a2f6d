// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// The program's command line as one string. Left out: logging filters and splitting into tokens and switches.

/** The program's command line as one string. */
struct CORE_API FCommandLine
{
	/** The command line without the program's name; a fatal check while it has not been set. */
	static const TCHAR* Get();
	/** Sets the command line; returns false when it is too long. */
	static bool Set(const TCHAR* NewCommandLine);
	/** Adds to the end of the command line. */
	static void Append(const TCHAR* AppendString);
	/** Says whether the command line has been set. */
	static bool IsInitialized();
};
