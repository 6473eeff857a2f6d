// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

// Small parsers for command lines and settings. Left out: GUIDs, colours, schema tokens, resolution strings.

/** Small parsers for command lines and settings. */
struct CORE_API FParse
{
	/** Reads what follows `Match` (e.g. "-size="), quoted or up to a blank (also comma or closing parenthesis); false when absent. */
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FString& OutValue, bool bShouldStopOnSeparator = true);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int32& OutValue);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint32& OutValue);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, float& OutValue);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FName& OutName);
	/** Reads a truth value that follows `Match`: true, yes, on, 1 or false, no, off, 0. */
	static bool Bool(const TCHAR* Stream, const TCHAR* Match, bool& bOutValue);
	/** Says whether the switch `-Param` (or /Param) stands in the stream. */
	static bool Param(const TCHAR* Stream, const TCHAR* Param);

	/** If the stream starts with this word, moves behind it and the blanks that follow. */
	static bool Command(const TCHAR** Stream, const TCHAR* Match, bool bParseMightTriggerExecution = true);
	/** Reads the next word or quoted string; false at the end. With escapes, a backslash guards the next character of a quoted one. */
	static bool Token(const TCHAR*& Str, FString& Arg, bool bUseEscape);
	/** Reads the next run of letters, digits and underscores; false when there is none. */
	static bool AlnumToken(const TCHAR*& Str, FString& Arg);
	/** Reads one line without its end and moves behind it; false when the stream is at its end. */
	static bool Line(const TCHAR** Stream, FString& Result, bool bExact = false);
	/** Moves behind blanks, tabs and line ends. */
	static void Next(const TCHAR** Stream);

	/** Reads a string in double quotes with the escapes of C; false when it does not start or end with a quote. */
	static bool QuotedString(const TCHAR* Buffer, FString& Value, int32* OutNumCharsRead = nullptr);
	/** Value of a hexadecimal digit; 0 for other characters. */
	static int32 HexDigit(TCHAR c);
	/** Value of a hexadecimal number, with or without 0x. */
	static uint32 HexNumber(const TCHAR* HexString);
};
