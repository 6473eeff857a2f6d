// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"
#include "Misc/OutputDevice.h"
#include "Templates/IsArrayOrRefOfType.h"
#include "Misc/VarArgs.h"

// UE_LOG and the category macros. Every line carries the file and line it was written at (see StandIn/LogRecord.h).
// Left out: structured logging, tracing and NO_LOGGING builds.

/** Formats log lines and sends them on their way. */
struct CORE_API FMsg
{
	/** Formats one line and sends it to GWarn (Error, Warning, Display) or GLog; a Fatal line ends the process. */
	template <typename FmtType, typename... Types>
	static void Logf(
		const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		static_assert(TIsArrayOrRefOfType<FmtType, TCHAR>::Value, "Formatting string must be a TCHAR array.");
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to FMsg::Logf");
		Logf_Internal(File, Line, Category, Verbosity, Fmt, Args...);
	}

	/** Does the work of Logf without the checks. */
	static void VARARGS Logf_Internal(
		const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
};

/** True where a line of this category and verbosity would be written. */
#define UE_LOG_ACTIVE(CategoryName, Verbosity) \
	((int32(ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) <= int32(FLogCategory##CategoryName::CompileTimeVerbosity)) \
		&& (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity)))

/** Writes a formatted line to a log category; the format must be a TCHAR literal. */
#define UE_LOG(CategoryName, Verbosity, Format, ...) \
	{ \
		static_assert(TIsArrayOrRefOfType<decltype(Format), TCHAR>::Value, "Formatting string must be a TCHAR array."); \
		static_assert( \
			(ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) < ELogVerbosity::NumVerbosity && ELogVerbosity::Verbosity > 0, \
			"Verbosity must be constant and in range."); \
		if (int32(ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) <= int32(FLogCategory##CategoryName::CompileTimeVerbosity)) \
		{ \
			if (ELogVerbosity::Verbosity == ELogVerbosity::Fatal || !CategoryName.IsSuppressed(ELogVerbosity::Verbosity)) \
			{ \
				FMsg::Logf(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity, Format, ##__VA_ARGS__); \
			} \
		} \
	}

/** UE_LOG when a condition holds; the condition is not evaluated for a suppressed category. */
#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) \
	{ \
		static_assert(TIsArrayOrRefOfType<decltype(Format), TCHAR>::Value, "Formatting string must be a TCHAR array."); \
		static_assert( \
			(ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) < ELogVerbosity::NumVerbosity && ELogVerbosity::Verbosity > 0, \
			"Verbosity must be constant and in range."); \
		if (int32(ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) <= int32(FLogCategory##CategoryName::CompileTimeVerbosity)) \
		{ \
			if (ELogVerbosity::Verbosity == ELogVerbosity::Fatal || !CategoryName.IsSuppressed(ELogVerbosity::Verbosity)) \
			{ \
				if (Condition) \
				{ \
					FMsg::Logf(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity, Format, ##__VA_ARGS__); \
				} \
			} \
		} \
	}

/** Runs a statement only where a line of this category and verbosity would be written. */
#define UE_SUPPRESS(CategoryName, Verbosity, ExecuteIfUnsuppressed) \
	{ \
		if (UE_LOG_ACTIVE(CategoryName, Verbosity)) \
		{ \
			ExecuteIfUnsuppressed; \
		} \
	}

/** Declares a log category that another file defines; may be prefixed with an API macro. */
#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{} \
	} CategoryName

/** Defines a declared log category. */
#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

/** Declares and defines a log category of one file. */
#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{} \
	} CategoryName

/** Declares a log category that is a static member of a class. */
#define DECLARE_LOG_CATEGORY_CLASS(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)

/** Defines a log category declared by DECLARE_LOG_CATEGORY_CLASS. */
#define DEFINE_LOG_CATEGORY_CLASS(Class, CategoryName) Class::FLogCategory##CategoryName Class::CategoryName
