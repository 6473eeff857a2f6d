// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/OutputDevice.h"
#include "UObject/NameTypes.h"

// The printed form of a log line, as it stands in a log file.

/** Makes the printed form of log lines. */
struct CORE_API FOutputDeviceHelper
{
	/** Returns the engine's word for a verbosity, such as "Warning". */
	static const TCHAR* VerbosityToString(ELogVerbosity::Type Verbosity);

	/** Returns e.g. "LogTemp: Warning: text"; verbosity Log has no word; UTC stamps look like "[2021.08.01-10.00.00:000][  0]". */
	static FString FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message = nullptr,
		ELogTimes::Type LogTime = ELogTimes::None, const double Time = -1.0);
};
