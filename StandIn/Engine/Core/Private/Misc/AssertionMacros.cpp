// Copyright The Tintmill authors. All rights reserved.

#include "Misc/AssertionMacros.h"

#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"
#include "StandIn/FatalHandler.h"
#include <mutex>

namespace
{
std::mutex EnsureMutex;

/** Which arming an ensure reports in; a call site remembers the last one it reported in. */
int32 EnsureArming = 1;
}

void StandIn::RearmEnsures()
{
	const std::lock_guard<std::mutex> Lock(EnsureMutex);
	++EnsureArming;
}

void VARARGS FDebug::AssertFailedImpl(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Text = StandIn::FormatVString(Format, Args);
	va_end(Args);
	const FString Message =
		FString::Printf(TEXT("Assertion failed: %s [File:%s] [Line: %d] \n%s\n"), UTF8_TO_TCHAR(Expr), UTF8_TO_TCHAR(File), Line, *Text);
	StandIn::Fatal(*Message);
}

void VARARGS FDebug::FatalErrorImpl(const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Text = StandIn::FormatVString(Format, Args);
	va_end(Args);
	StandIn::FatalAt(File, Line, *Text);
}

void VARARGS FDebug::EnsureFailedImpl(
	int32* InOutReported, bool bAlways, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	{
		const std::lock_guard<std::mutex> Lock(EnsureMutex);
		if (*InOutReported == EnsureArming && !bAlways)
		{
			return;
		}
		*InOutReported = EnsureArming;
	}
	va_list Args;
	va_start(Args, Format);
	const FString Text = StandIn::FormatVString(Format, Args);
	va_end(Args);
	const FString Condition =
		FString::Printf(TEXT("Ensure condition failed: %s [File:%s] [Line: %d] "), UTF8_TO_TCHAR(Expr), UTF8_TO_TCHAR(File), Line);
	FOutputDeviceRedirector* Log = FOutputDeviceRedirector::Get();
	const FName Category(TEXT("LogOutputDevice"));
	Log->RedirectLog(Category, ELogVerbosity::Error, TEXT("=== Handled ensure: ==="));
	Log->RedirectLog(Category, ELogVerbosity::Error, TEXT(""));
	Log->RedirectLog(Category, ELogVerbosity::Error, *Condition);
	Log->RedirectLog(Category, ELogVerbosity::Error, *Text);
}
