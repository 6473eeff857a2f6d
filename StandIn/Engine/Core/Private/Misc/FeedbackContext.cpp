// Copyright The Tintmill authors. All rights reserved.

#include "Misc/FeedbackContext.h"

#include "Misc/OutputDeviceRedirector.h"

namespace
{
ELogVerbosity::Type FeedbackVerbosity(ELogVerbosity::Type Verbosity, bool bTreatWarningsAsErrors)
{
	return bTreatWarningsAsErrors && Verbosity == ELogVerbosity::Warning ? ELogVerbosity::Error : Verbosity;
}
}

void FFeedbackContext::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FOutputDeviceRedirector::Get()->Serialize(V, FeedbackVerbosity(Verbosity, TreatWarningsAsErrors), Category);
}

void FFeedbackContext::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
{
	FOutputDeviceRedirector::Get()->Serialize(V, FeedbackVerbosity(Verbosity, TreatWarningsAsErrors), Category, Time);
}

void FFeedbackContext::Flush()
{
	FOutputDeviceRedirector::Get()->Flush();
}
