// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Parse.h"

#include "Misc/CString.h"

#include <string>

namespace
{
bool IsBlank(TCHAR Char)
{
	return Char == ' ' || Char == '\t';
}

bool IsWord(TCHAR Char)
{
	return (Char >= '0' && Char <= '9') || (Char >= 'a' && Char <= 'z') || (Char >= 'A' && Char <= 'Z') || Char == '_';
}

TCHAR LowerAscii(TCHAR Char)
{
	return Char >= 'A' && Char <= 'Z' ? TCHAR(Char + 32) : Char;
}

/** Says whether a text starts with another, ignoring case; gives what follows. */
bool StartsWithText(const TCHAR* Text, const TCHAR* Start, const TCHAR*& OutRest)
{
	for (; *Start; ++Start, ++Text)
	{
		if (LowerAscii(*Text) != LowerAscii(*Start))
		{
			return false;
		}
	}
	OutRest = Text;
	return true;
}

/** Finds a match at the start of the stream or behind a character that is no part of a word; gives what follows. */
const TCHAR* FindMatch(const TCHAR* Stream, const TCHAR* Match)
{
	const TCHAR* Rest = nullptr;
	for (const TCHAR* At = Stream; *At; ++At)
	{
		const bool bStartsWord = At == Stream || !IsWord(At[-1]) || !IsWord(*Match);
		if (bStartsWord && StartsWithText(At, Match, Rest))
		{
			return Rest;
		}
	}
	return nullptr;
}

bool IsHexDigit(TCHAR Char)
{
	const TCHAR Lower = LowerAscii(Char);
	return (Lower >= '0' && Lower <= '9') || (Lower >= 'a' && Lower <= 'f');
}

/** Reads an escape sequence behind its backslash and moves behind it. */
void ReadEscape(const TCHAR*& At, std::basic_string<TCHAR>& Out)
{
	const TCHAR Char = *At++;
	uint32 Code = 0;
	switch (Char)
	{
	case 'n':
		Out += TCHAR('\n');
		return;
	case 'r':
		Out += TCHAR('\r');
		return;
	case 't':
		Out += TCHAR('\t');
		return;
	case 'x':
		for (; IsHexDigit(*At); ++At)
		{
			Code = Code * 16 + uint32(FParse::HexDigit(*At));
		}
		Out += TCHAR(Code);
		return;
	case 'u':
		for (int32 Digits = 0; Digits < 4 && IsHexDigit(*At); ++Digits, ++At)
		{
			Code = Code * 16 + uint32(FParse::HexDigit(*At));
		}
		Out += TCHAR(Code);
		return;
	default:
		break;
	}
	if (Char >= '0' && Char <= '7')
	{
		Code = uint32(Char - '0');
		for (int32 Digits = 1; Digits < 3 && *At >= '0' && *At <= '7'; ++Digits, ++At)
		{
			Code = Code * 8 + uint32(*At - '0');
		}
		Out += TCHAR(Code);
		return;
	}
	// Quotes and backslashes stand for themselves; an unknown escape stays as it is written.
	if (Char != '"' && Char != '\'' && Char != '\\')
	{
		Out += TCHAR('\\');
	}
	Out += Char;
}
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FString& OutValue, bool bShouldStopOnSeparator)
{
	const TCHAR* At = FindMatch(Stream, Match);
	if (!At)
	{
		return false;
	}
	std::basic_string<TCHAR> Found;
	if (*At == '"')
	{
		for (++At; *At && *At != '"' && *At != '\n' && *At != '\r'; ++At)
		{
			Found += *At;
		}
	}
	else
	{
		for (; *At && !IsBlank(*At) && *At != '\n' && *At != '\r'; ++At)
		{
			if (bShouldStopOnSeparator && (*At == ',' || *At == ')'))
			{
				break;
			}
			Found += *At;
		}
	}
	OutValue = FString(Found.c_str());
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int32& OutValue)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	OutValue = FCString::Atoi(*Text);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint32& OutValue)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	OutValue = uint32(FCString::Atoi64(*Text));
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, float& OutValue)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	OutValue = FCString::Atof(*Text);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FName& OutName)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	OutName = FName(*Text);
	return true;
}

bool FParse::Bool(const TCHAR* Stream, const TCHAR* Match, bool& bOutValue)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	bOutValue = FCString::ToBool(*Text);
	return true;
}

bool FParse::Param(const TCHAR* Stream, const TCHAR* Param)
{
	bool bInQuotes = false;
	for (const TCHAR* At = Stream; *At; ++At)
	{
		bInQuotes = *At == '"' ? !bInQuotes : bInQuotes;
		const bool bStartsWord = At == Stream || IsBlank(At[-1]) || At[-1] == '"';
		const TCHAR* Rest = nullptr;
		if (!bInQuotes && bStartsWord && (*At == '-' || *At == '/') && StartsWithText(At + 1, Param, Rest) && (!*Rest || IsBlank(*Rest)))
		{
			return true;
		}
	}
	return false;
}

bool FParse::Command(const TCHAR** Stream, const TCHAR* Match, bool bParseMightTriggerExecution)
{
	(void)bParseMightTriggerExecution;
	const TCHAR* At = *Stream;
	while (IsBlank(*At))
	{
		++At;
	}
	const TCHAR* Rest = nullptr;
	if (!StartsWithText(At, Match, Rest) || IsWord(*Rest))
	{
		return false;
	}
	while (IsBlank(*Rest))
	{
		++Rest;
	}
	*Stream = Rest;
	return true;
}

bool FParse::Token(const TCHAR*& Str, FString& Arg, bool bUseEscape)
{
	std::basic_string<TCHAR> Found;
	Next(&Str);
	const bool bIsToken = *Str != 0;
	if (*Str == '"')
	{
		for (++Str; *Str && *Str != '"'; ++Str)
		{
			if (*Str == '\\' && bUseEscape && Str[1])
			{
				++Str;
			}
			Found += *Str;
		}
		Str += *Str == '"' ? 1 : 0;
	}
	else
	{
		for (; *Str && !IsBlank(*Str) && *Str != '\n' && *Str != '\r'; ++Str)
		{
			Found += *Str;
		}
	}
	Arg = FString(Found.c_str());
	return bIsToken;
}

bool FParse::AlnumToken(const TCHAR*& Str, FString& Arg)
{
	std::basic_string<TCHAR> Found;
	Next(&Str);
	for (; IsWord(*Str); ++Str)
	{
		Found += *Str;
	}
	Arg = FString(Found.c_str());
	return !Found.empty();
}

bool FParse::Line(const TCHAR** Stream, FString& Result, bool bExact)
{
	(void)bExact;
	const TCHAR* At = *Stream;
	if (!*At)
	{
		Result.Empty();
		return false;
	}
	while (*At && *At != '\n' && *At != '\r')
	{
		++At;
	}
	Result = FString(int32(At - *Stream), *Stream);
	if (*At == '\r')
	{
		++At;
		At += *At == '\n' ? 1 : 0;
	}
	else if (*At == '\n')
	{
		++At;
	}
	*Stream = At;
	return true;
}

void FParse::Next(const TCHAR** Stream)
{
	while (IsBlank(**Stream) || **Stream == '\r' || **Stream == '\n')
	{
		++*Stream;
	}
}

bool FParse::QuotedString(const TCHAR* Buffer, FString& Value, int32* OutNumCharsRead)
{
	if (OutNumCharsRead)
	{
		*OutNumCharsRead = 0;
	}
	if (*Buffer != '"')
	{
		return false;
	}
	std::basic_string<TCHAR> Found;
	const TCHAR* At = Buffer + 1;
	while (*At && *At != '"' && *At != '\n' && *At != '\r')
	{
		if (*At != '\\')
		{
			Found += *At++;
		}
		else if (*++At)
		{
			ReadEscape(At, Found);
		}
	}
	if (*At != '"')
	{
		return false;
	}
	Value.Append(Found.c_str());
	if (OutNumCharsRead)
	{
		*OutNumCharsRead = int32(At + 1 - Buffer);
	}
	return true;
}

int32 FParse::HexDigit(TCHAR c)
{
	const TCHAR Lower = LowerAscii(c);
	if (Lower >= '0' && Lower <= '9')
	{
		return Lower - '0';
	}
	return Lower >= 'a' && Lower <= 'f' ? Lower - 'a' + 10 : 0;
}

uint32 FParse::HexNumber(const TCHAR* HexString)
{
	uint32 Result = 0;
	const TCHAR* At = HexString;
	if (At[0] == '0' && LowerAscii(At[1]) == 'x')
	{
		At += 2;
	}
	for (; IsHexDigit(*At); ++At)
	{
		Result = Result * 16 + uint32(HexDigit(*At));
	}
	return Result;
}
