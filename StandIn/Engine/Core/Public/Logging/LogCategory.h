// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

// Log categories: named objects that decide at run time which lines pass. A category registers with the suppression
// interface while its library's statics are constructed and leaves it when they are destroyed, as in the engine.
// Left out: the stack-allocated category names and tracing.

/** A log category: name, default, compile-time and current verbosity. */
struct CORE_API FLogCategoryBase
{
	/** Registers the category; the configuration or command line may already replace the default verbosity here. */
	FLogCategoryBase(const TCHAR* InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity);

	/** Takes the category out of the suppression interface. */
	~FLogCategoryBase();

	FLogCategoryBase(const FLogCategoryBase&) = delete;
	FLogCategoryBase& operator=(const FLogCategoryBase&) = delete;

	/** Says whether a line of this verbosity is held back now. */
	FORCEINLINE bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const
	{
		return !((VerbosityLevel & ELogVerbosity::VerbosityMask) <= Verbosity);
	}

	/** The category's name. */
	FORCEINLINE const FName& GetCategoryName() const { return CategoryFName; }

	/** The verbosity up to which lines pass now. */
	FORCEINLINE ELogVerbosity::Type GetVerbosity() const { return static_cast<ELogVerbosity::Type>(Verbosity); }

	/** Sets the verbosity up to which lines pass, at most the compile-time one. */
	void SetVerbosity(ELogVerbosity::Type NewVerbosity);

	/** The verbosity above which lines are not even compiled. */
	FORCEINLINE ELogVerbosity::Type GetCompileTimeVerbosity() const { return CompileTimeVerbosity; }

private:
	friend class FLogSuppressionImplementation;

	/** Sets the verbosity back to the category's default. */
	void ResetFromDefault();

	uint8 Verbosity;
	uint8 DefaultVerbosity;
	const ELogVerbosity::Type CompileTimeVerbosity;
	const FName CategoryFName;
};

/** A log category whose default and compile-time verbosity are known to the compiler. */
template <uint8 InDefaultVerbosity, uint8 InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static_assert((InDefaultVerbosity & ELogVerbosity::VerbosityMask) < ELogVerbosity::NumVerbosity, "Bogus default verbosity.");
	static_assert(InCompileTimeVerbosity < ELogVerbosity::NumVerbosity, "Bogus compile time verbosity.");

	enum
	{
		CompileTimeVerbosity = InCompileTimeVerbosity
	};

	/** Registers the category under this name. */
	FORCEINLINE FLogCategory(const TCHAR* InCategoryName)
		: FLogCategoryBase(InCategoryName, ELogVerbosity::Type(InDefaultVerbosity), ELogVerbosity::Type(CompileTimeVerbosity))
	{}
};
