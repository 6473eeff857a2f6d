// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// A length of time in ticks of 100 nanoseconds; only what dates need.

namespace ETimespan
{
constexpr int64 TicksPerMicrosecond = 10;
constexpr int64 TicksPerMillisecond = 10000;
constexpr int64 TicksPerSecond = 10000000;
constexpr int64 TicksPerMinute = 600000000;
constexpr int64 TicksPerHour = 36000000000;
constexpr int64 TicksPerDay = 864000000000;
}

/** A length of time. */
struct FTimespan
{
	FTimespan() {}

	/** From ticks of 100 nanoseconds. */
	explicit FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{}

	/** From hours, minutes and seconds. */
	FTimespan(int32 Hours, int32 Minutes, int32 Seconds)
		: Ticks(Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute + Seconds * ETimespan::TicksPerSecond)
	{}

	/** Ticks of 100 nanoseconds. */
	int64 GetTicks() const { return Ticks; }

	/** Seconds with their fraction. */
	double GetTotalSeconds() const { return (double)Ticks / (double)ETimespan::TicksPerSecond; }

	/** Milliseconds with their fraction. */
	double GetTotalMilliseconds() const { return (double)Ticks / (double)ETimespan::TicksPerMillisecond; }

	/** A length of so many seconds. */
	static FTimespan FromSeconds(double Seconds) { return FTimespan((int64)(Seconds * (double)ETimespan::TicksPerSecond)); }

	/** Equal lengths. */
	bool operator==(const FTimespan& Other) const { return Ticks == Other.Ticks; }
	/** Different lengths. */
	bool operator!=(const FTimespan& Other) const { return Ticks != Other.Ticks; }
	/** Shorter. */
	bool operator<(const FTimespan& Other) const { return Ticks < Other.Ticks; }
	/** Longer. */
	bool operator>(const FTimespan& Other) const { return Ticks > Other.Ticks; }
	/** Sum. */
	FTimespan operator+(const FTimespan& Other) const { return FTimespan(Ticks + Other.Ticks); }
	/** Difference. */
	FTimespan operator-(const FTimespan& Other) const { return FTimespan(Ticks - Other.Ticks); }

private:
	int64 Ticks = 0;
};
