// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/OutputDevice.h"

// The way of Error, Warning and Display lines into the log. Left out: slow tasks, progress windows, yes-or-no questions and
// the engine's collection of warnings for commandlets.

/** Takes the lines that a person should see and passes them on to GLog; `GWarn` is the one in use. */
class CORE_API FFeedbackContext : public FOutputDevice
{
public:
	FFeedbackContext()
		: TreatWarningsAsErrors(false)
	{}

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time) override;
	virtual void Flush() override;

	/** When set, warnings are passed on as errors. */
	bool TreatWarningsAsErrors;
};
