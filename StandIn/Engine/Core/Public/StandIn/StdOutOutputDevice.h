// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/OutputDevice.h"

// Not in the engine under this name: the console's log.

namespace StandIn
{
/** Writes log lines to standard output in the engine's printed form, UTF-8, up to a verbosity. */
class CORE_API FStdOutOutputDevice : public FOutputDevice
{
public:
	/** Lets lines pass up to a verbosity, with a time stamp of choice. */
	explicit FStdOutOutputDevice(ELogVerbosity::Type InMaxVerbosity = ELogVerbosity::Log, ELogTimes::Type InLogTimes = ELogTimes::None);

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time) override;
	virtual void Flush() override;
	virtual bool CanBeUsedOnAnyThread() const override { return true; }

private:
	ELogVerbosity::Type MaxVerbosity;
	ELogTimes::Type LogTimes;
};
}
