// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// How serious a log line is, with the engine's values. Complete.

namespace ELogVerbosity
{
/** Seriousness of a log line, most serious first; the low four bits hold the value, the rest are modifiers. */
enum Type : uint8
{
	/** Not used for lines: nothing is let through. */
	NoLogging = 0,
	/** Ends the process after it has been written. */
	Fatal,
	Error,
	Warning,
	/** For the console as well as the log. */
	Display,
	/** For the log only. */
	Log,
	Verbose,
	VeryVerbose,

	All = VeryVerbose,
	NumVerbosity,
	VerbosityMask = 0xf,
	/** The line is a colour name for the console, not text. */
	SetColor = 0x40,
	BreakOnLog = 0x80
};
}

static_assert(ELogVerbosity::NumVerbosity - 1 < ELogVerbosity::VerbosityMask, "Bad verbosity mask.");
static_assert(!(ELogVerbosity::VerbosityMask & ELogVerbosity::BreakOnLog), "Bad verbosity mask.");

/** Returns the engine's word for a verbosity, such as "Warning", or "" for a value that is none. */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);

/** Reads a verbosity word, case-insensitively; unknown words give ELogVerbosity::Log. */
CORE_API ELogVerbosity::Type ParseLogVerbosityFromString(const class FString& VerbosityString);
