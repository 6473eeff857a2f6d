// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDeviceHelper.h"

#include "CoreGlobals.h"
#include "HAL/PlatformTime.h"

#include <chrono>
#include <cstdio>
#include <ctime>

namespace
{
/** "[2021.08.01-10.00.00:000]" for a moment, in universal or local time. */
FString FormatMoment(std::chrono::system_clock::time_point Moment, bool bLocal)
{
	const std::time_t Seconds = std::chrono::system_clock::to_time_t(Moment);
	const int32 Milliseconds = int32(std::chrono::duration_cast<std::chrono::milliseconds>(Moment.time_since_epoch()).count() % 1000);
	const std::tm* const Found = bLocal ? std::localtime(&Seconds) : std::gmtime(&Seconds);
	if (!Found)
	{
		return FString();
	}
	const std::tm Parts = *Found;
	return FString::Printf(TEXT("[%d.%02d.%02d-%02d.%02d.%02d:%03d]"), Parts.tm_year + 1900, Parts.tm_mon + 1, Parts.tm_mday, Parts.tm_hour,
		Parts.tm_min, Parts.tm_sec, Milliseconds);
}

FString FormatLogTime(ELogTimes::Type LogTime, double Time)
{
	const int32 Frame = int32(GFrameCounter % 1000);
	switch (LogTime)
	{
	case ELogTimes::UTC:
	case ELogTimes::Local:
		return FormatMoment(std::chrono::system_clock::now(), LogTime == ELogTimes::Local) + FString::Printf(TEXT("[%3d]"), Frame);
	case ELogTimes::SinceGStartTime:
		return FString::Printf(TEXT("[%07.2f][%3d]"), Time < 0.0 ? FPlatformTime::Seconds() - GStartTime : Time, Frame);
	default:
		return FString();
	}
}
}

const TCHAR* FOutputDeviceHelper::VerbosityToString(ELogVerbosity::Type Verbosity)
{
	return ToString(Verbosity);
}

FString FOutputDeviceHelper::FormatLogLine(
	ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message, ELogTimes::Type LogTime, const double Time)
{
	FString Line = FormatLogTime(LogTime, Time);
	const ELogVerbosity::Type Plain = ELogVerbosity::Type(Verbosity & ELogVerbosity::VerbosityMask);
	if (Category != NAME_None)
	{
		Line += Category.ToString();
		Line += TEXT(": ");
	}
	if (Plain != ELogVerbosity::Log)
	{
		Line += VerbosityToString(Plain);
		Line += TEXT(": ");
	}
	if (Message)
	{
		Line += Message;
	}
	return Line;
}
