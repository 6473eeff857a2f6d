// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostLog.h"

#include "Host/Program/Strings.h"

#include "HAL/PlatformTime.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/OutputDeviceRedirector.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** Longer lines go on in the next one, as in the editor's own log. */
constexpr int32 MaxLineLength = 360;

/** Long lines are not broken within words up to this length. */
constexpr int32 LongestWord = 60;

/** Where the first line of a text ends: at its line break, or before it is too long, but not within a character of two units. */
int32 FindLineEnd(const FString& Text, int32 Start)
{
	const int32 End = std::min(Text.Len(), Start + MaxLineLength);
	for (int32 Index = Start; Index < End; ++Index)
	{
		if (Text[Index] == TEXT('\n'))
		{
			return Index;
		}
	}
	if (End == Text.Len())
	{
		return End;
	}
	for (int32 Index = End; Index > End - LongestWord; --Index)
	{
		if (Text[Index - 1] == TEXT(' '))
		{
			return Index;
		}
	}
	const bool bWithinCharacter = Text[End] >= 0xDC00 && Text[End] <= 0xDFFF;
	return bWithinCharacter ? End - 1 : End;
}
}

FHostLog::FHostLog()
	: StartSeconds(FPlatformTime::Seconds())
{
	GLog->AddOutputDevice(this);
}

FHostLog::~FHostLog()
{
	GLog->RemoveOutputDevice(this);
}

void FHostLog::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	if (Verbosity == ELogVerbosity::SetColor)
	{
		return;
	}
	const FString Printed = FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V);
	Text += ToUtf8(Printed) + "\n";

	FLogLine Record;
	Record.Category = Category;
	Record.Verbosity = static_cast<ELogVerbosity::Type>(Verbosity & ELogVerbosity::VerbosityMask);
	Record.Seconds = FPlatformTime::Seconds() - StartSeconds;
	Record.CategoryLength = Category == NAME_None ? 0 : ToUtf8(Category.ToString()).size() + 1;
	for (int32 Start = 0; Start <= Printed.Len();)
	{
		const int32 End = FindLineEnd(Printed, Start);
		AddLine(Printed.Mid(Start, End - Start), Record);
		Record.CategoryLength = 0;
		if (End >= Printed.Len())
		{
			break;
		}
		Start = Printed[End] == TEXT('\n') ? End + 1 : End;
	}
}

void FHostLog::AddLine(const FString& Line, FLogLine Record)
{
	Record.Text = ToUtf8(Line.Replace(TEXT("\t"), TEXT("    ")).Replace(TEXT("\r"), TEXT("")));
	Record.Lowered = ToLowerCase(Record.Text);
	Record.CategoryLength = std::min(Record.CategoryLength, Record.Text.size());
	Lines.push_back(std::move(Record));
}
}
