// Copyright The Tintmill authors. All rights reserved.

#include "Misc/CString.h"

#include <charconv>
#include <limits>
#include <string>

int32 VARARGS FCString::SnprintfImpl(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	const int32 Result = StandIn::FormatV(Dest, DestSize, Fmt, Args);
	va_end(Args);
	return Result;
}

namespace StandIn
{
namespace
{
template <typename CharType>
double ParseDoubleImpl(const CharType* Text, int32* OutUsed)
{
	int32 Start = 0;
	while (TChar<CharType>::IsWhitespace(Text[Start]))
	{
		++Start;
	}
	if (Text[Start] == '+' && Text[Start + 1] != '-')
	{
		++Start;
	}
	std::string Narrow;
	for (int32 Index = Start; Text[Index] > 0 && (uint32)Text[Index] < 0x80u && !TChar<CharType>::IsWhitespace(Text[Index]); ++Index)
	{
		Narrow += (char)Text[Index];
	}
	double Value = 0.0;
	const std::from_chars_result Result = std::from_chars(Narrow.data(), Narrow.data() + Narrow.size(), Value);
	if (Result.ec == std::errc::result_out_of_range)
	{
		const std::string Used(Narrow, 0, (std::size_t)(Result.ptr - Narrow.data()));
		const std::size_t Exponent = Used.find_first_of("eE");
		const bool bTiny = (Exponent != std::string::npos && Exponent + 1 < Used.size() && Used[Exponent + 1] == '-')
			|| (Exponent == std::string::npos && Used.find_first_of("123456789") > Used.find('.'));
		Value = bTiny ? 0.0 : std::numeric_limits<double>::infinity();
		Value = Narrow[0] == '-' ? -Value : Value;
	}
	if (OutUsed != nullptr)
	{
		*OutUsed = Result.ec == std::errc::invalid_argument ? 0 : Start + (int32)(Result.ptr - Narrow.data());
	}
	return Value;
}
}

double ParseDouble(const TCHAR* Text, int32* OutUsed)
{
	return ParseDoubleImpl(Text, OutUsed);
}

double ParseDouble(const ANSICHAR* Text, int32* OutUsed)
{
	return ParseDoubleImpl(Text, OutUsed);
}
}
