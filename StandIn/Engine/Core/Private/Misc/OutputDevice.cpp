// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDevice.h"

#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Logging/FormatArguments.h"
#include "UObject/NameTypes.h"

#include <cstdarg>
#include <vector>

void FOutputDevice::Log(const TCHAR* S)
{
	Serialize(S, ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(ELogVerbosity::Type Verbosity, const TCHAR* S)
{
	Serialize(S, Verbosity, NAME_None);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* S)
{
	Serialize(S, Verbosity, Category);
}

void FOutputDevice::Log(const FString& S)
{
	Serialize(*S, ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(const FText& S)
{
	Serialize(*S.ToString(), ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(ELogVerbosity::Type Verbosity, const FString& S)
{
	Serialize(*S, Verbosity, NAME_None);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const FString& S)
{
	Serialize(*S, Verbosity, Category);
}

void VARARGS FOutputDevice::LogfImpl(const TCHAR* Fmt, ...)
{
	va_list Arguments;
	va_start(Arguments, Fmt);
	const std::vector<TCHAR> Text = StandInPrivate::FormatArguments(Fmt, Arguments);
	va_end(Arguments);
	Serialize(Text.data(), ELogVerbosity::Log, NAME_None);
}

void VARARGS FOutputDevice::LogfImpl(ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Arguments;
	va_start(Arguments, Fmt);
	const std::vector<TCHAR> Text = StandInPrivate::FormatArguments(Fmt, Arguments);
	va_end(Arguments);
	Serialize(Text.data(), Verbosity, NAME_None);
}

void VARARGS FOutputDevice::CategorizedLogfImpl(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Arguments;
	va_start(Arguments, Fmt);
	const std::vector<TCHAR> Text = StandInPrivate::FormatArguments(Fmt, Arguments);
	va_end(Arguments);
	Serialize(Text.data(), Verbosity, Category);
}
