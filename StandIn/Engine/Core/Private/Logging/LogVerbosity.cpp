// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogVerbosity.h"

#include "Containers/UnrealString.h"

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity & ELogVerbosity::VerbosityMask)
	{
	case ELogVerbosity::NoLogging:
		return TEXT("NoLogging");
	case ELogVerbosity::Fatal:
		return TEXT("Fatal");
	case ELogVerbosity::Error:
		return TEXT("Error");
	case ELogVerbosity::Warning:
		return TEXT("Warning");
	case ELogVerbosity::Display:
		return TEXT("Display");
	case ELogVerbosity::Log:
		return TEXT("Log");
	case ELogVerbosity::Verbose:
		return TEXT("Verbose");
	case ELogVerbosity::VeryVerbose:
		return TEXT("VeryVerbose");
	default:
		return TEXT("");
	}
}

ELogVerbosity::Type ParseLogVerbosityFromString(const FString& VerbosityString)
{
	for (uint8 Value = ELogVerbosity::NoLogging; Value < ELogVerbosity::NumVerbosity; ++Value)
	{
		if (VerbosityString == ToString(ELogVerbosity::Type(Value)))
		{
			return ELogVerbosity::Type(Value);
		}
	}
	return VerbosityString == TEXT("All") ? ELogVerbosity::All : ELogVerbosity::Log;
}
