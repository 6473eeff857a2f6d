// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "Templates/IsArrayOrRefOfType.h"
#include "Misc/VarArgs.h"

// The base of everything that takes log lines. Left out: dumping to archives (Dump is refused by omission) and the
// engine's logging helpers for localised text.

class FName;
class FString;
class FText;

namespace ELogTimes
{
/** Which time stamp a printed log line starts with. */
enum Type
{
	None,
	UTC,
	SinceGStartTime,
	Local
};
}

/** Takes log lines: the formatted text without category or line end, the verbosity and the category. */
class CORE_API FOutputDevice
{
public:
	FOutputDevice()
		: bSuppressEventTag(false)
		, bAutoEmitLineTerminator(true)
	{}

	virtual ~FOutputDevice() {}

	/** Takes one line. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;

	/** Takes one line with its time in seconds since start, or -1; drops the time unless overridden. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
	{
		(void)Time;
		Serialize(V, Verbosity, Category);
	}

	/** Writes out what is buffered. */
	virtual void Flush() {}

	/** Ends the device's work; called once before it is destroyed at exit. */
	virtual void TearDown() { Flush(); }

	/** Says that lines go to memory only. */
	virtual bool IsMemoryOnly() const { return false; }

	/** Says that lines may arrive on any thread, without buffering until the master thread comes by. */
	virtual bool CanBeUsedOnAnyThread() const { return false; }

	/** Says that lines may arrive on several threads at once. */
	virtual bool CanBeUsedOnMultipleThreads() const { return false; }

	/** Sets whether the printed form leaves out category and verbosity. */
	FORCEINLINE void SetSuppressEventTag(bool bInSuppressEventTag) { bSuppressEventTag = bInSuppressEventTag; }
	/** Says whether the printed form leaves out category and verbosity. */
	FORCEINLINE bool GetSuppressEventTag() const { return bSuppressEventTag; }
	/** Sets whether the printed form ends each line itself. */
	FORCEINLINE void SetAutoEmitLineTerminator(bool bInAutoEmitLineTerminator) { bAutoEmitLineTerminator = bInAutoEmitLineTerminator; }
	/** Says whether the printed form ends each line itself. */
	FORCEINLINE bool GetAutoEmitLineTerminator() const { return bAutoEmitLineTerminator; }

	/** Sends a line of verbosity Log without category. */
	void Log(const TCHAR* S);
	/** Sends a line without category. */
	void Log(ELogVerbosity::Type Verbosity, const TCHAR* S);
	/** Sends a line. */
	void Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* S);
	/** Sends a line of verbosity Log without category. */
	void Log(const FString& S);
	/** Sends a line of verbosity Log without category. */
	void Log(const FText& S);
	/** Sends a line without category. */
	void Log(ELogVerbosity::Type Verbosity, const FString& S);
	/** Sends a line. */
	void Log(const FName& Category, ELogVerbosity::Type Verbosity, const FString& S);

	/** Formats and sends a line of verbosity Log without category. */
	template <typename FmtType, typename... Types>
	void Logf(const FmtType& Fmt, Types... Args)
	{
		static_assert(TIsArrayOrRefOfType<FmtType, TCHAR>::Value, "Formatting string must be a TCHAR array.");
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to FOutputDevice::Logf");
		LogfImpl(Fmt, Args...);
	}

	/** Formats and sends a line without category. */
	template <typename FmtType, typename... Types>
	void Logf(ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		static_assert(TIsArrayOrRefOfType<FmtType, TCHAR>::Value, "Formatting string must be a TCHAR array.");
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to FOutputDevice::Logf");
		LogfImpl(Verbosity, Fmt, Args...);
	}

	/** Formats and sends a line. */
	template <typename FmtType, typename... Types>
	void CategorizedLogf(const FName& Category, ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		static_assert(TIsArrayOrRefOfType<FmtType, TCHAR>::Value, "Formatting string must be a TCHAR array.");
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to FOutputDevice::CategorizedLogf");
		CategorizedLogfImpl(Category, Verbosity, Fmt, Args...);
	}

protected:
	bool bSuppressEventTag;
	bool bAutoEmitLineTerminator;

private:
	void VARARGS LogfImpl(const TCHAR* Fmt, ...);
	void VARARGS LogfImpl(ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
	void VARARGS CategorizedLogfImpl(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
};
