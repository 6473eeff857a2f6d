// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/CString.h"
#include <cstdarg>
#include <vector>

// Formatting into a buffer of whatever size it takes.

namespace StandInPrivate
{
/** Formats into a buffer that is grown until the text fits; the result ends with a zero. */
inline std::vector<TCHAR> FormatArguments(const TCHAR* Format, va_list Arguments)
{
	std::vector<TCHAR> Buffer(512);
	for (;;)
	{
		va_list Copy;
		va_copy(Copy, Arguments);
		const TCHAR* FormatCopy = Format;
		const int32 Length = FCString::GetVarArgs(Buffer.data(), Buffer.size(), FormatCopy, Copy);
		va_end(Copy);
		if (Length >= 0 && size_t(Length) < Buffer.size())
		{
			Buffer[size_t(Length)] = 0;
			return Buffer;
		}
		Buffer.resize(Buffer.size() * 2);
	}
}
}
