// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// The one way out of a fatal error, and the refusal of what the stand-in does not do.

namespace StandIn
{
/** Called with the whole text of a fatal error after it was logged; should not return (if it does, the process ends all the same). */
typedef void (*FFatalHandler)(const TCHAR* Message);

/** Replaces the fatal handler (null: the default, which writes to stderr and ends with code 3) and yields the one before. */
CORE_API FFatalHandler SetFatalHandler(FFatalHandler InHandler);

/** Logs a fatal error's text as Error, calls the handler, ends the process. */
[[noreturn]] CORE_API void Fatal(const TCHAR* Message);

/** Ends the process with "Fatal error: [File:File] [Line: Line]" and Text below, as LowLevelFatalError and a Fatal log line do. */
[[noreturn]] CORE_API void FatalAt(const ANSICHAR* File, int32 Line, const TCHAR* Text);

/** Ends the process with "not in this stand-in: Name"; use STANDIN_MISSING. */
[[noreturn]] CORE_API void Missing(const ANSICHAR* File, int32 Line, const TCHAR* Name);

/** Lets every ensure report once more, as in a fresh process. */
CORE_API void RearmEnsures();
}

/** Refuses, fatally, what the stand-in does not do; Name is the engine's name of it. */
#define STANDIN_MISSING(Name) ::StandIn::Missing(__FILE__, __LINE__, Name)
