// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformTime.h"

#include <chrono>

double FPlatformTime::Seconds()
{
	return ToSeconds64(Cycles64());
}

uint64 FPlatformTime::Cycles64()
{
	const std::chrono::steady_clock::duration SinceEpoch = std::chrono::steady_clock::now().time_since_epoch();
	return uint64(std::chrono::duration_cast<std::chrono::nanoseconds>(SinceEpoch).count());
}

double FPlatformTime::GetSecondsPerCycle64()
{
	return 1e-9;
}

double FPlatformTime::ToMilliseconds64(uint64 Cycles)
{
	return double(Cycles) * 1e-6;
}

double FPlatformTime::ToSeconds64(uint64 Cycles)
{
	return double(Cycles) * 1e-9;
}
