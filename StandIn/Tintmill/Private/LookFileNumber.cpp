// Copyright The Tintmill authors. All rights reserved.

#include "LookFileNumber.h"

#include "LookFileText.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace LookFileNumberPrivate
{
/** from_chars knows no leading plus sign; files do. */
static std::string_view WithoutPlus(std::string_view Word)
{
	return Word.size() > 1 && Word[0] == '+' && Word[1] != '-' && Word[1] != '+' ? Word.substr(1) : Word;
}

static std::string_view WithoutSign(std::string_view Word)
{
	return !Word.empty() && (Word[0] == '-' || Word[0] == '+') ? Word.substr(1) : Word;
}

static std::string BadNumber(std::string_view Word)
{
	const std::string_view Bare = WithoutSign(Word);
	if (LookFile::SameWord(Bare.substr(0, 3), "nan") || LookFile::SameWord(Bare.substr(0, 3), "inf"))
	{
		return LookFile::Quoted(Word) + " is not a finite number";
	}
	if (Word.find(',') != std::string_view::npos)
	{
		return LookFile::Quoted(Word) + " is not a number; decimals are written with a point, and numbers are parted by blanks";
	}
	return LookFile::Quoted(Word) + " is not a number";
}
}

namespace LookFile
{
bool ParseNumber(std::string_view Word, float& OutValue, std::string& OutReason)
{
	const std::string_view Digits = LookFileNumberPrivate::WithoutPlus(Word);
	double Value = 0.0;
	const std::from_chars_result Result = std::from_chars(Digits.data(), Digits.data() + Digits.size(), Value, std::chars_format::general);
	const bool bWhole = Result.ptr == Digits.data() + Digits.size() && !Digits.empty();
	if (Result.ec == std::errc::invalid_argument || !bWhole)
	{
		OutReason = LookFileNumberPrivate::BadNumber(Word);
		return false;
	}
	// Beyond the range of a double: a negative exponent means that the number is as good as nought.
	if (Result.ec == std::errc::result_out_of_range)
	{
		const std::size_t Exponent = Digits.find_first_of("eE");
		if (Exponent == std::string_view::npos || Digits.substr(Exponent + 1, 1) != "-")
		{
			OutReason = Quoted(Word) + " is too large a number";
			return false;
		}
		Value = 0.0;
	}
	if (std::isnan(Value) || std::isinf(Value))
	{
		OutReason = Quoted(Word) + " is not a finite number";
		return false;
	}
	OutValue = static_cast<float>(std::fabs(Value) < 1e-37 ? 0.0 : Value);
	if (std::fabs(Value) > 1e9)
	{
		OutReason = Quoted(Word) + " is too large a number";
		return false;
	}
	return true;
}

bool ParseInteger(std::string_view Word, std::int64_t Lowest, std::int64_t Highest, std::int64_t& OutValue, std::string& OutReason)
{
	const std::string_view Digits = LookFileNumberPrivate::WithoutPlus(Word);
	const std::from_chars_result Result = std::from_chars(Digits.data(), Digits.data() + Digits.size(), OutValue);
	const bool bWhole = Result.ptr == Digits.data() + Digits.size() && !Digits.empty();
	if (Result.ec == std::errc::invalid_argument || !bWhole)
	{
		OutReason = Quoted(Word) + " is not a whole number";
		return false;
	}
	if (Result.ec == std::errc::result_out_of_range || OutValue < Lowest || OutValue > Highest)
	{
		OutReason = Quoted(Word) + " is not between " + std::to_string(Lowest) + " and " + std::to_string(Highest);
		return false;
	}
	return true;
}

void AppendNumber(std::string& InOutText, float Value)
{
	char Buffer[32];
	const std::to_chars_result Result = std::to_chars(Buffer, Buffer + sizeof(Buffer), Value);
	InOutText.append(Buffer, Result.ptr);
}
}
