// Copyright The Tintmill authors. All rights reserved.
#include "TextTools.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace HeaderTool
{

namespace
{

bool IsHexDigit(char Letter)
{
	return std::isxdigit(static_cast<unsigned char>(Letter)) != 0;
}

}

std::string Fill(std::string_view Pattern, std::initializer_list<std::string_view> Values)
{
	std::string Result;
	for (std::size_t Index = 0; Index < Pattern.size(); ++Index)
	{
		const bool bPlace = Pattern[Index] == '$' && Index + 1 < Pattern.size() && Pattern[Index + 1] >= '0' && Pattern[Index + 1] <= '9';
		const std::size_t Number = bPlace ? static_cast<std::size_t>(Pattern[Index + 1] - '0') : Values.size();
		if (Number < Values.size())
		{
			Result += *(Values.begin() + Number);
			++Index;
		}
		else
		{
			Result += Pattern[Index];
		}
	}
	return Result;
}

std::string ToLiteral(std::string_view Text)
{
	static const char Digits[] = "0123456789abcdef";
	std::string Result = "\"";
	bool bAfterHex = false;
	char Previous = 0;
	for (const char Letter : Text)
	{
		const unsigned char Code = static_cast<unsigned char>(Letter);
		const bool bWasHex = bAfterHex;
		bAfterHex = false;
		if (Letter == '\n')
		{
			Result += "\\n";
		}
		else if (Letter == '\\' || Letter == '"')
		{
			Result += '\\';
			Result += Letter;
		}
		else if (Code < 0x20 || Code >= 0x7F)
		{
			Result += "\\x";
			Result += Digits[Code >> 4];
			Result += Digits[Code & 15];
			bAfterHex = true;
		}
		else
		{
			// A hex escape takes every digit that follows it, and two question marks may start a trigraph.
			if ((bWasHex && IsHexDigit(Letter)) || (Letter == '?' && Previous == '?'))
			{
				Result += "\"\"";
			}
			Result += Letter;
		}
		Previous = Letter;
	}
	return Result + '"';
}

std::string ToHex(std::uint64_t Value, int Digits)
{
	std::string Result;
	while (Value != 0 || static_cast<int>(Result.size()) < Digits)
	{
		Result += "0123456789ABCDEF"[Value & 15];
		Value >>= 4;
	}
	std::reverse(Result.begin(), Result.end());
	return "0x" + Result;
}

std::uint32_t Crc32(std::string_view Text)
{
	std::uint32_t Crc = 0xFFFFFFFFu;
	for (const char Letter : Text)
	{
		Crc ^= static_cast<unsigned char>(Letter);
		for (int Bit = 0; Bit < 8; ++Bit)
		{
			Crc = (Crc >> 1) ^ ((Crc & 1u) != 0 ? 0xEDB88320u : 0u);
		}
	}
	return ~Crc;
}

std::string ToLower(std::string_view Text)
{
	std::string Result(Text);
	for (char& Letter : Result)
	{
		Letter = Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter - 'A' + 'a') : Letter;
	}
	return Result;
}

std::string ToUpper(std::string_view Text)
{
	std::string Result(Text);
	for (char& Letter : Result)
	{
		Letter = Letter >= 'a' && Letter <= 'z' ? static_cast<char>(Letter - 'a' + 'A') : Letter;
	}
	return Result;
}

bool EqualsIgnoreCase(std::string_view A, std::string_view B)
{
	return ToLower(A) == ToLower(B);
}

std::string ToIdentifier(std::string_view Text)
{
	std::string Result(Text);
	for (char& Letter : Result)
	{
		Letter = std::isalnum(static_cast<unsigned char>(Letter)) != 0 ? Letter : '_';
	}
	return Result;
}

std::vector<std::string> SplitLines(std::string_view Text)
{
	std::vector<std::string> Lines;
	std::size_t Start = 0;
	while (true)
	{
		const std::size_t End = Text.find('\n', Start);
		Lines.emplace_back(Text.substr(Start, End == std::string_view::npos ? End : End - Start));
		if (End == std::string_view::npos)
		{
			return Lines;
		}
		Start = End + 1;
	}
}

}
