// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/FatalHandler.h"

#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "HAL/PlatformMisc.h"
#include "Misc/OutputDeviceRedirector.h"
#include "UObject/NameTypes.h"
#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace StandIn
{
namespace
{
std::atomic<FFatalHandler> FatalHandler{nullptr};

void WriteToStdErr(const TCHAR* Message)
{
	const FTCHARToUTF8 Utf8(Message);
	std::fflush(stdout);
	std::fwrite(Utf8.Get(), 1, (std::size_t)Utf8.Length(), stderr);
	std::fflush(stderr);
}
}

FFatalHandler SetFatalHandler(FFatalHandler InHandler)
{
	return FatalHandler.exchange(InHandler);
}

void Fatal(const TCHAR* Message)
{
	// An error inside the reporting of an error must not report itself again.
	static thread_local bool bReporting = false;
	const bool bNested = bReporting;
	bReporting = true;
	if (!bNested)
	{
		GIsCriticalError = true;
		const FString Category = FString(TEXT("Log")) + FPlatformMisc::GetIniPlatform();
		const FString Line = (FString(TEXT("appError called: ")) + Message).TrimEnd();
		FOutputDeviceRedirector::Get()->RedirectLog(FName(*Category), ELogVerbosity::Error, *Line);
		FOutputDeviceRedirector::Get()->PanicFlushThreadedLogs();
		if (const FFatalHandler Handler = FatalHandler.load())
		{
			// A handler may leave by other ways than return.
			bReporting = false;
			Handler(Message);
		}
	}
	WriteToStdErr(Message);
	std::_Exit(3);
}

void FatalAt(const ANSICHAR* File, int32 Line, const TCHAR* Text)
{
	const FString Message = FString::Printf(TEXT("Fatal error: [File:%s] [Line: %d] \n%s\n"), UTF8_TO_TCHAR(File), Line, Text);
	Fatal(*Message);
}

void Missing(const ANSICHAR* File, int32 Line, const TCHAR* Name)
{
	FatalAt(File, Line, *(FString(TEXT("not in this stand-in: ")) + Name));
}
}
