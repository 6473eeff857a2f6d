// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformMisc.h"

#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace
{
uint8 RequestedReturnCode = 0;
}

void FPlatformMisc::RequestExit(bool bForce)
{
	RequestExitWithStatus(bForce, bForce ? 1 : 0);
}

void FPlatformMisc::RequestExitWithStatus(bool bForce, uint8 ReturnCode)
{
	UE_LOG(LogCore, Log, TEXT("FPlatformMisc::RequestExit(%d)"), bForce ? 1 : 0);
	RequestedReturnCode = ReturnCode;
	if (bForce)
	{
		GLog->Flush();
		std::fflush(nullptr);
		std::_Exit(ReturnCode);
	}
	RequestEngineExit(TEXT("FPlatformMisc::RequestExit"));
}

uint8 FPlatformMisc::GetRequestedReturnCode()
{
	return RequestedReturnCode;
}

int32 FPlatformMisc::NumberOfCoresIncludingHyperthreads()
{
	const unsigned int Count = std::thread::hardware_concurrency();
	return Count > 0 ? int32(Count) : 1;
}

int32 FPlatformMisc::NumberOfCores()
{
	return NumberOfCoresIncludingHyperthreads();
}
