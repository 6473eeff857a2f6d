// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/VarArgs.h"

// check, verify and ensure. A failed check logs the engine's text and ends the process through StandIn/FatalHandler.h; it never returns.
// Macros inside a checked expression are shown expanded. There is no call stack in the log.

/** Reports failed assertions. */
struct CORE_API FDebug
{
	/** Ends the process with the text "Assertion failed: Expr [File:File] [Line: Line]" and the formatted message below. */
	template <typename... Types>
	static void AssertFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, Types... Args)
	{
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to a formatted check.");
		AssertFailedImpl(Expr, File, Line, Format, Args...);
	}

	/** Ends the process like AssertFailed, without a message. */
	static void AssertFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line) { AssertFailedImpl(Expr, File, Line, TEXT("")); }

	/** Ends the process with the text "Fatal error: [File:File] [Line: Line]" and the formatted message below. */
	template <typename... Types>
	static void FatalError(const ANSICHAR* File, int32 Line, const TCHAR* Format, Types... Args)
	{
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to LowLevelFatalError.");
		FatalErrorImpl(File, Line, Format, Args...);
	}

	/** Logs a failed ensure, once for each InOutReported unless bAlways; always yields false. */
	template <typename... Types>
	static bool EnsureFailed(
		int32& InOutReported, bool bAlways, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, Types... Args)
	{
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to ensureMsgf.");
		EnsureFailedImpl(&InOutReported, bAlways, Expr, File, Line, Format, Args...);
		return false;
	}

private:
	static void VARARGS AssertFailedImpl(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...);
	static void VARARGS FatalErrorImpl(const ANSICHAR* File, int32 Line, const TCHAR* Format, ...);
	static void VARARGS EnsureFailedImpl(
		int32* InOutReported, bool bAlways, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...);
};

#define UE_CHECK_IMPL(expr) \
	{ \
		if (UNLIKELY(!(expr))) \
		{ \
			FDebug::AssertFailed(#expr, __FILE__, __LINE__); \
		} \
	}
#define UE_CHECK_F_IMPL(expr, format, ...) \
	{ \
		if (UNLIKELY(!(expr))) \
		{ \
			FDebug::AssertFailed(#expr, __FILE__, __LINE__, format, ##__VA_ARGS__); \
		} \
	}

#if DO_CHECK
#define check(expr) UE_CHECK_IMPL(expr)
#define checkf(expr, format, ...) UE_CHECK_F_IMPL(expr, format, ##__VA_ARGS__)
#define verify(expr) UE_CHECK_IMPL(expr)
#define verifyf(expr, format, ...) UE_CHECK_F_IMPL(expr, format, ##__VA_ARGS__)
#define checkCode(Code) \
	do \
	{ \
		Code; \
	} while (false)
#define checkNoEntry() \
	{ \
		FDebug::AssertFailed("Enclosing block should never be called", __FILE__, __LINE__); \
	}
#define checkNoReentry() \
	{ \
		static bool PREPROCESSOR_JOIN(bBeenHere, __LINE__) = false; \
		if (PREPROCESSOR_JOIN(bBeenHere, __LINE__)) \
		{ \
			FDebug::AssertFailed("Enclosing block was called more than once", __FILE__, __LINE__); \
		} \
		PREPROCESSOR_JOIN(bBeenHere, __LINE__) = true; \
	}

/** Counts how deep a block is entered, for checkNoRecursion. */
class FRecursionScopeMarker
{
public:
	/** Counts one more entry until the marker goes out of scope. */
	explicit FRecursionScopeMarker(uint16& InCounter)
		: Counter(InCounter)
	{
		++Counter;
	}

	~FRecursionScopeMarker() { --Counter; }

private:
	uint16& Counter;
};

#define checkNoRecursion() \
	static uint16 PREPROCESSOR_JOIN(RecursionCounter, __LINE__) = 0; \
	if (PREPROCESSOR_JOIN(RecursionCounter, __LINE__) != 0) \
	{ \
		FDebug::AssertFailed("Enclosing block was entered recursively", __FILE__, __LINE__); \
	} \
	const FRecursionScopeMarker PREPROCESSOR_JOIN(ScopeMarker, __LINE__)(PREPROCESSOR_JOIN(RecursionCounter, __LINE__))
#define unimplemented() \
	{ \
		FDebug::AssertFailed("Unimplemented function called", __FILE__, __LINE__); \
	}
#else
#define check(expr) \
	{}
#define checkf(expr, format, ...) \
	{}
#define verify(expr) \
	{ \
		if (UNLIKELY(!(expr))) \
		{} \
	}
#define verifyf(expr, format, ...) \
	{ \
		if (UNLIKELY(!(expr))) \
		{} \
	}
#define checkCode(Code)
#define checkNoEntry()
#define checkNoReentry()
#define checkNoRecursion()
#define unimplemented()
#endif

#if DO_GUARD_SLOW
#define checkSlow(expr) UE_CHECK_IMPL(expr)
#define checkfSlow(expr, format, ...) UE_CHECK_F_IMPL(expr, format, ##__VA_ARGS__)
#define verifySlow(expr) UE_CHECK_IMPL(expr)
#else
#define checkSlow(expr) \
	{}
#define checkfSlow(expr, format, ...) \
	{}
#define verifySlow(expr) \
	{ \
		if (UNLIKELY(!(expr))) \
		{} \
	}
#endif

#if DO_ENSURE
#define UE_ENSURE_IMPL(Capture, bAlways, InExpression, InFormat, ...) \
	(LIKELY(!!(InExpression)) || ([Capture]() -> bool { \
		static int32 Reported = 0; \
		return FDebug::EnsureFailed(Reported, bAlways, #InExpression, __FILE__, __LINE__, InFormat, ##__VA_ARGS__); \
	})())
#define ensure(InExpression) UE_ENSURE_IMPL(, false, InExpression, TEXT(""))
#define ensureMsgf(InExpression, InFormat, ...) UE_ENSURE_IMPL(&, false, InExpression, InFormat, ##__VA_ARGS__)
#define ensureAlways(InExpression) UE_ENSURE_IMPL(, true, InExpression, TEXT(""))
#define ensureAlwaysMsgf(InExpression, InFormat, ...) UE_ENSURE_IMPL(&, true, InExpression, InFormat, ##__VA_ARGS__)
#else
#define ensure(InExpression) (!!(InExpression))
#define ensureMsgf(InExpression, InFormat, ...) (!!(InExpression))
#define ensureAlways(InExpression) (!!(InExpression))
#define ensureAlwaysMsgf(InExpression, InFormat, ...) (!!(InExpression))
#endif

#define LowLevelFatalError(Format, ...) \
	{ \
		FDebug::FatalError(__FILE__, __LINE__, Format, ##__VA_ARGS__); \
	}

#define UE_STATIC_ASSERT_WARN(bExpression, Message) static_assert(bExpression, Message)
