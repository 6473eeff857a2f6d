// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include <string>
#include <vector>

// Text in files: UTF-8, or UTF-16 with a byte order mark.

namespace StandInPrivate
{
/** One line of a text file, without its end. */
struct FTextLine
{
	std::basic_string<TCHAR> Text;
	/** False when the line holds bytes that are not text: bad UTF-8 or UTF-16, or control characters other than tab. */
	bool bReadable = true;
};

/** Decodes a whole text; bad bytes become U+FFFD, NULs stay out. */
FString DecodeText(const uint8* Bytes, int64 NumBytes);

/** Decodes a text line by line; CR, LF and CR LF end lines, a last line without an end counts. */
std::vector<FTextLine> DecodeLines(const uint8* Bytes, int64 NumBytes);

/** Encodes as UTF-8; surrogates without their other half become U+FFFD. */
std::string ToUtf8(const TCHAR* Text, int64 Length);
std::string ToUtf8(const FString& Text);
}
