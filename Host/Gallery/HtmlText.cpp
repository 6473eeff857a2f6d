// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/HtmlText.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace TintmillHost
{
namespace
{
constexpr const char* Replacement = "\xEF\xBF\xBD";

/** The length of the UTF-8 character at the front, 0 if there is none. */
size_t MeasureCharacter(std::string_view Text)
{
	const auto At = [Text](size_t Index) { return static_cast<unsigned char>(Text[Index]); };
	const unsigned char First = At(0);
	const size_t Length = First < 0x80 ? 1 : First < 0xC2 ? 0 : First < 0xE0 ? 2 : First < 0xF0 ? 3 : First < 0xF5 ? 4 : 0;
	if (Length == 0 || Length > Text.size())
	{
		return 0;
	}
	for (size_t Index = 1; Index < Length; ++Index)
	{
		if ((At(Index) & 0xC0) != 0x80)
		{
			return 0;
		}
	}
	// Forms that are too long, surrogates, and what lies behind the last character there is.
	const bool bWrong = Length > 2
		&& ((First == 0xE0 && At(1) < 0xA0) || (First == 0xED && At(1) > 0x9F) || (First == 0xF0 && At(1) < 0x90)
			|| (First == 0xF4 && At(1) > 0x8F));
	return bWrong ? 0 : Length;
}

void AppendEscaped(std::string& Result, char Character)
{
	switch (Character)
	{
	case '&':
		Result += "&amp;";
		break;
	case '<':
		Result += "&lt;";
		break;
	case '>':
		Result += "&gt;";
		break;
	case '"':
		Result += "&quot;";
		break;
	case '\t':
	case '\n':
		Result += Character;
		break;
	case '\r':
		break;
	default:
		if (static_cast<unsigned char>(Character) < 0x20 || Character == 0x7F)
		{
			Result += Replacement;
		}
		else
		{
			Result += Character;
		}
		break;
	}
}
}

std::string EscapeHtml(std::string_view Text)
{
	std::string Result;
	while (!Text.empty())
	{
		const size_t Length = MeasureCharacter(Text);
		if (Length == 1)
		{
			AppendEscaped(Result, Text.front());
		}
		else if (Length == 0)
		{
			Result += Replacement;
		}
		else
		{
			Result += Text.substr(0, Length);
		}
		Text.remove_prefix(std::max<size_t>(Length, 1));
	}
	return Result;
}

std::string EncodeBase64(std::string_view Bytes)
{
	constexpr const char* Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
	std::string Result;
	Result.reserve((Bytes.size() + 2) / 3 * 4);
	for (size_t Index = 0; Index < Bytes.size(); Index += 3)
	{
		const size_t Count = std::min<size_t>(3, Bytes.size() - Index);
		uint32_t Group = 0;
		for (size_t Offset = 0; Offset < 3; ++Offset)
		{
			Group = Group << 8 | (Offset < Count ? static_cast<unsigned char>(Bytes[Index + Offset]) : 0u);
		}
		for (size_t Digit = 0; Digit < 4; ++Digit)
		{
			Result += Digit <= Count ? Digits[Group >> (18 - 6 * Digit) & 63u] : '=';
		}
	}
	return Result;
}

std::string DescribeSeconds(double Seconds)
{
	char Text[32];
	if (Seconds < 0.01)
	{
		std::snprintf(Text, sizeof(Text), "%.1f ms", Seconds * 1e3);
	}
	else if (Seconds < 1.0)
	{
		std::snprintf(Text, sizeof(Text), "%.0f ms", Seconds * 1e3);
	}
	else
	{
		std::snprintf(Text, sizeof(Text), "%.2f s", Seconds);
	}
	return Text;
}
}
