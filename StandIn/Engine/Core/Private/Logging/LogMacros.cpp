// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogMacros.h"

#include "CoreGlobals.h"
#include "Logging/FormatArguments.h"
#include "Logging/LogSource.h"
#include "Misc/FeedbackContext.h"
#include "Misc/OutputDeviceRedirector.h"
#include "StandIn/FatalHandler.h"

#include <cstdarg>
#include <vector>

namespace StandInPrivate
{
FLogSource& CurrentLogSource()
{
	static thread_local FLogSource Source;
	return Source;
}
}

void VARARGS FMsg::Logf_Internal(
	const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Arguments;
	va_start(Arguments, Fmt);
	const std::vector<TCHAR> Text = StandInPrivate::FormatArguments(Fmt, Arguments);
	va_end(Arguments);

	if ((Verbosity & ELogVerbosity::VerbosityMask) == ELogVerbosity::Fatal)
	{
		StandIn::FatalAt(File, Line, Text.data());
	}

	StandInPrivate::FLogSource& Source = StandInPrivate::CurrentLogSource();
	const StandInPrivate::FLogSource Outer = Source;
	Source.File = File;
	Source.Line = Line;
	// Lines for a person take the way over the feedback context; before the globals are constructed there is only the redirector.
	if (Verbosity <= ELogVerbosity::Display && GWarn)
	{
		GWarn->Log(Category, Verbosity, Text.data());
	}
	else
	{
		FOutputDeviceRedirector::Get()->RedirectLog(Category, Verbosity, Text.data());
	}
	Source = Outer;
}
