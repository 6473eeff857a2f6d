// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// The steady clock. Left out: calendar time and CPU usage.

/** The steady clock. */
struct CORE_API FPlatformTime
{
	/** Seconds since an unspecified moment; never runs backwards. */
	static double Seconds();

	/** Ticks of the steady clock, nanoseconds here. */
	static uint64 Cycles64();

	/** Length of a tick in seconds. */
	static double GetSecondsPerCycle64();

	/** Converts ticks to milliseconds. */
	static double ToMilliseconds64(uint64 Cycles);

	/** Converts ticks to seconds. */
	static double ToSeconds64(uint64 Cycles);
};
