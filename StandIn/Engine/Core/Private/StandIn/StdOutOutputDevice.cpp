// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/StdOutOutputDevice.h"

#include "Misc/OutputDeviceHelper.h"
#include "Misc/TextCodec.h"

#include <cstdio>
#include <string>

namespace StandIn
{
FStdOutOutputDevice::FStdOutOutputDevice(ELogVerbosity::Type InMaxVerbosity, ELogTimes::Type InLogTimes)
	: MaxVerbosity(InMaxVerbosity)
	, LogTimes(InLogTimes)
{}

void FStdOutOutputDevice::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(V, Verbosity, Category, -1.0);
}

void FStdOutOutputDevice::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
{
	if ((Verbosity & ELogVerbosity::SetColor) || (Verbosity & ELogVerbosity::VerbosityMask) > MaxVerbosity)
	{
		return;
	}
	const FString Line = bSuppressEventTag ? FString(V) : FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V, LogTimes, Time);
	const std::string Bytes = StandInPrivate::ToUtf8(Line) + (bAutoEmitLineTerminator ? "\n" : "");
	std::fwrite(Bytes.data(), 1, Bytes.size(), stdout);
}

void FStdOutOutputDevice::Flush()
{
	std::fflush(stdout);
}
}
