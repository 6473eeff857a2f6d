// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// Questions about single characters. Case is that of ASCII letters only, in every locale.

/** Character functions for one character type. */
template <typename CharType>
struct TChar
{
	/** Upper-case form of an ASCII letter, other characters as they are. */
	static constexpr CharType ToUpper(CharType Char) { return Char >= 'a' && Char <= 'z' ? (CharType)(Char - 32) : Char; }

	/** Lower-case form of an ASCII letter, other characters as they are. */
	static constexpr CharType ToLower(CharType Char) { return Char >= 'A' && Char <= 'Z' ? (CharType)(Char + 32) : Char; }

	/** Whether an ASCII upper-case letter. */
	static constexpr bool IsUpper(CharType Char) { return Char >= 'A' && Char <= 'Z'; }

	/** Whether an ASCII lower-case letter. */
	static constexpr bool IsLower(CharType Char) { return Char >= 'a' && Char <= 'z'; }

	/** Whether an ASCII letter. */
	static constexpr bool IsAlpha(CharType Char) { return IsUpper(Char) || IsLower(Char); }

	/** Whether an ASCII digit. */
	static constexpr bool IsDigit(CharType Char) { return Char >= '0' && Char <= '9'; }

	/** Whether a hexadecimal digit. */
	static constexpr bool IsHexDigit(CharType Char)
	{
		return IsDigit(Char) || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F');
	}

	/** Whether an ASCII letter or digit. */
	static constexpr bool IsAlnum(CharType Char) { return IsAlpha(Char) || IsDigit(Char); }

	/** Whether a blank, tab, line break, form feed or vertical tab. */
	static constexpr bool IsWhitespace(CharType Char) { return Char == ' ' || (Char >= 9 && Char <= 13); }

	/** Whether ASCII punctuation. */
	static constexpr bool IsPunct(CharType Char) { return Char > 32 && Char < 127 && !IsAlnum(Char); }

	/** Whether an ASCII control character. */
	static constexpr bool IsControl(CharType Char) { return (Char >= 0 && Char < 32) || Char == 127; }

	/** Whether a letter, digit or underscore. */
	static constexpr bool IsIdentifier(CharType Char) { return IsAlnum(Char) || IsUnderscore(Char); }

	/** Whether an underscore. */
	static constexpr bool IsUnderscore(CharType Char) { return Char == '_'; }

	/** Whether a character that ends a line. */
	static constexpr bool IsLinebreak(CharType Char)
	{
		return (Char >= 10 && Char <= 13) || (uint32)Char == 0x85u || (uint32)Char == 0x2028u || (uint32)Char == 0x2029u;
	}

	/** Value of a decimal digit. */
	static constexpr int32 ConvertCharDigitToInt(CharType Char) { return (int32)Char - '0'; }
};

typedef TChar<TCHAR> FChar;
typedef TChar<WIDECHAR> FCharWide;
typedef TChar<ANSICHAR> FCharAnsi;
