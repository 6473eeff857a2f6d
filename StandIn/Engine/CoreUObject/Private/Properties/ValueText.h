// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Pieces of value text.

namespace StandInPrivate
{
/** The text behind blanks, tabs and line ends. */
const TCHAR* SkipBlanks(const TCHAR* Text);
/** The end of the field at the start of a text: the next comma or closing parenthesis outside of quotes and parentheses. */
const TCHAR* SkipField(const TCHAR* Text);
/** Reads a quoted string at the start of a text and moves behind it; false, with the rest of the text, when it is not closed. */
bool ReadQuoted(const TCHAR*& Text, FString& OutString, bool bEscapes);
/** Reads up to a blank, comma, quote, parenthesis or the end and moves there. */
FString ReadToken(const TCHAR*& Text);
/** Reads a quoted string or a token. */
bool ReadQuotedOrToken(const TCHAR*& Text, FString& OutString, bool bEscapes);
/** A string in quotes, with escapes. */
FString QuoteString(const FString& String);
/** The start of a text, for messages: the field it begins with, cut after some characters. */
FString Excerpt(const TCHAR* Text);
/** Compares the start of a text without regard to case and moves behind it if it is the same. */
bool SkipWord(const TCHAR*& Text, const TCHAR* Word);
}
