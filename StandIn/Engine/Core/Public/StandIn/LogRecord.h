// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

// Not in the engine: lets a test or the host see where a log line was written.

namespace StandIn
{
/** One log line with its place in the source; valid during the call only. */
struct FLogRecord
{
	/** Source file as the compiler got it, or "" for a line that did not come from UE_LOG. */
	const ANSICHAR* File;
	/** Source line, or 0. */
	int32 Line;
	FName Category;
	ELogVerbosity::Type Verbosity;
	/** The formatted text. */
	const TCHAR* Text;
};

DECLARE_MULTICAST_DELEGATE_OneParam(FOnLogRecord, const FLogRecord&);

/** Fires on the log's master thread for every line that reaches GLog, just before the devices get it. */
CORE_API FOnLogRecord& OnLogRecord();
}
