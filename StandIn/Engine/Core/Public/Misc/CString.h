// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/Char.h"
#include "Misc/AssertionMacros.h"
#include <cstdarg>

// C strings of TCHAR and of ANSICHAR. Case is that of ASCII letters. Numbers are read alike in every locale.

/** Case sensitivity of a search or comparison. */
namespace ESearchCase
{
enum Type
{
	CaseSensitive,
	IgnoreCase
};
}

/** Direction of a search. */
namespace ESearchDir
{
enum Type
{
	FromStart,
	FromEnd
};
}

namespace StandIn
{
/** Formats like printf into Dest (DestSize characters with the terminator); yields the length, or -1 when it does not fit. */
CORE_API int32 FormatV(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, va_list Args);

/** Reads the number at the start of a text, 0 if there is none; OutEnd receives how many characters were used. */
CORE_API double ParseDouble(const TCHAR* Text, int32* OutUsed = nullptr);
CORE_API double ParseDouble(const ANSICHAR* Text, int32* OutUsed = nullptr);
}

/** C string functions for one character type; case by ASCII. */
template <typename T>
struct TCString
{
	typedef T CharType;

	/** Length in characters without the terminator. */
	static int32 Strlen(const CharType* String)
	{
		int32 Length = 0;
		while (String[Length] != 0)
		{
			++Length;
		}
		return Length;
	}

	/** Length, at most MaxLength. */
	static int32 Strnlen(const CharType* String, SIZE_T MaxLength)
	{
		int32 Length = 0;
		while ((SIZE_T)Length < MaxLength && String[Length] != 0)
		{
			++Length;
		}
		return Length;
	}

	/** Compares case-sensitively; negative, zero or positive. */
	static int32 Strcmp(const CharType* A, const CharType* B) { return CompareImpl(A, B, (SIZE_T)-1, false); }

	/** Compares without regard to case; negative, zero or positive. */
	static int32 Stricmp(const CharType* A, const CharType* B) { return CompareImpl(A, B, (SIZE_T)-1, true); }

	/** Compares at most Count characters case-sensitively. */
	static int32 Strncmp(const CharType* A, const CharType* B, SIZE_T Count) { return CompareImpl(A, B, Count, false); }

	/** Compares at most Count characters without regard to case. */
	static int32 Strnicmp(const CharType* A, const CharType* B, SIZE_T Count) { return CompareImpl(A, B, Count, true); }

	/** Copies a string into a buffer of DestCount characters, cut off when it does not fit. */
	static CharType* Strcpy(CharType* Dest, SIZE_T DestCount, const CharType* Src) { return Strncpy(Dest, Src, (int32)DestCount); }

	/** Copies at most MaxLen - 1 characters and terminates. */
	static CharType* Strncpy(CharType* Dest, const CharType* Src, int32 MaxLen)
	{
		check(MaxLen > 0);
		int32 Index = 0;
		for (; Index < MaxLen - 1 && Src[Index] != 0; ++Index)
		{
			Dest[Index] = Src[Index];
		}
		Dest[Index] = 0;
		return Dest;
	}

	/** Appends to a string in a buffer of DestCount characters, cut off when it does not fit. */
	static CharType* Strcat(CharType* Dest, SIZE_T DestCount, const CharType* Src)
	{
		const int32 Length = Strlen(Dest);
		Strncpy(Dest + Length, Src, (int32)DestCount - Length);
		return Dest;
	}

	/** First place of a character, or null. */
	static const CharType* Strchr(const CharType* String, CharType Char)
	{
		for (;; ++String)
		{
			if (*String == Char)
			{
				return String;
			}
			if (*String == 0)
			{
				return nullptr;
			}
		}
	}

	/** Last place of a character, or null. */
	static const CharType* Strrchr(const CharType* String, CharType Char)
	{
		const CharType* Found = nullptr;
		for (;; ++String)
		{
			if (*String == Char)
			{
				Found = String;
			}
			if (*String == 0)
			{
				return Found;
			}
		}
	}

	/** First place of Find in String, case-sensitively, or null. */
	static const CharType* Strstr(const CharType* String, const CharType* Find) { return FindImpl(String, Find, false); }

	/** First place of Find in String without regard to case, or null. */
	static const CharType* Stristr(const CharType* String, const CharType* Find) { return FindImpl(String, Find, true); }

	/** Reads a decimal integer, 0 if there is none, the nearest limit if it does not fit. */
	static int32 Atoi(const CharType* String)
	{
		const int64 Value = Strtoi64(String, nullptr, 10);
		return Value > MAX_int32 ? MAX_int32 : Value < MIN_int32 ? MIN_int32 : (int32)Value;
	}

	/** Reads a decimal 64-bit integer, 0 if there is none, the nearest limit if it does not fit. */
	static int64 Atoi64(const CharType* String) { return Strtoi64(String, nullptr, 10); }

	/** Reads a floating-point number with a decimal point, 0 if there is none. */
	static float Atof(const CharType* String) { return (float)StandIn::ParseDouble(String); }

	/** Reads a floating-point number in double precision, 0 if there is none. */
	static double Atod(const CharType* String) { return StandIn::ParseDouble(String); }

	/** Reads an integer of the given base; OutEnd (optional) receives where reading stopped. */
	static int32 Strtoi(const CharType* Start, CharType** OutEnd, int32 Base)
	{
		const int64 Value = Strtoi64(Start, OutEnd, Base);
		return Value > MAX_int32 ? MAX_int32 : Value < MIN_int32 ? MIN_int32 : (int32)Value;
	}

	/** Reads a 64-bit integer of the given base, the nearest limit if it does not fit. */
	static int64 Strtoi64(const CharType* Start, CharType** OutEnd, int32 Base)
	{
		bool bNegative = false;
		const uint64 Magnitude = MagnitudeImpl(Start, OutEnd, Base, bNegative);
		if (bNegative)
		{
			return Magnitude >= (uint64)MAX_int64 + 1 ? MIN_int64 : -(int64)Magnitude;
		}
		return Magnitude > (uint64)MAX_int64 ? MAX_int64 : (int64)Magnitude;
	}

	/** Reads an unsigned 64-bit integer of the given base, the largest if it does not fit. */
	static uint64 Strtoui64(const CharType* Start, CharType** OutEnd, int32 Base)
	{
		bool bNegative = false;
		const uint64 Magnitude = MagnitudeImpl(Start, OutEnd, Base, bNegative);
		return bNegative ? 0 - Magnitude : Magnitude;
	}

	/** Whether a text is one number: optional sign, digits, at most one point. */
	static bool IsNumeric(const CharType* String)
	{
		if (*String == '-' || *String == '+')
		{
			++String;
		}
		bool bHasDot = false;
		bool bHasDigit = false;
		for (; *String != 0; ++String)
		{
			if (*String == '.')
			{
				if (bHasDot)
				{
					return false;
				}
				bHasDot = true;
			}
			else if (!TChar<CharType>::IsDigit(*String))
			{
				return false;
			}
			else
			{
				bHasDigit = true;
			}
		}
		return bHasDigit;
	}

	/** Whether every character is 7-bit ASCII. */
	static bool IsPureAnsi(const CharType* String)
	{
		for (; *String != 0; ++String)
		{
			if ((uint32)*String > 0x7fu)
			{
				return false;
			}
		}
		return true;
	}

	/** Reads True/Yes/On or a number other than nought as true. */
	static bool ToBool(const CharType* String)
	{
		static const CharType TrueWord[] = {'T', 'r', 'u', 'e', 0};
		static const CharType YesWord[] = {'Y', 'e', 's', 0};
		static const CharType OnWord[] = {'O', 'n', 0};
		static const CharType FalseWord[] = {'F', 'a', 'l', 's', 'e', 0};
		static const CharType NoWord[] = {'N', 'o', 0};
		static const CharType OffWord[] = {'O', 'f', 'f', 0};
		if (Stricmp(String, TrueWord) == 0 || Stricmp(String, YesWord) == 0 || Stricmp(String, OnWord) == 0)
		{
			return true;
		}
		if (Stricmp(String, FalseWord) == 0 || Stricmp(String, NoWord) == 0 || Stricmp(String, OffWord) == 0)
		{
			return false;
		}
		return Atoi(String) != 0;
	}

	/** Formats into Dest (DestSize characters) from a list of arguments; yields the length or -1 when it does not fit. */
	static int32 GetVarArgs(CharType* Dest, SIZE_T DestSize, const CharType* Fmt, va_list ArgPtr)
	{
		return StandIn::FormatV(Dest, DestSize, Fmt, ArgPtr);
	}

private:
	static int32 CompareImpl(const CharType* A, const CharType* B, SIZE_T Count, bool bIgnoreCase)
	{
		for (; Count > 0; --Count, ++A, ++B)
		{
			const CharType CharA = bIgnoreCase ? TChar<CharType>::ToLower(*A) : *A;
			const CharType CharB = bIgnoreCase ? TChar<CharType>::ToLower(*B) : *B;
			if (CharA != CharB)
			{
				return (uint32)CharA < (uint32)CharB ? -1 : 1;
			}
			if (CharA == 0)
			{
				return 0;
			}
		}
		return 0;
	}

	static const CharType* FindImpl(const CharType* String, const CharType* Find, bool bIgnoreCase)
	{
		const SIZE_T Length = (SIZE_T)Strlen(Find);
		for (;; ++String)
		{
			if (CompareImpl(String, Find, Length, bIgnoreCase) == 0)
			{
				return String;
			}
			if (*String == 0)
			{
				return nullptr;
			}
		}
	}

	static int32 DigitImpl(CharType Char)
	{
		if (TChar<CharType>::IsDigit(Char))
		{
			return (int32)Char - '0';
		}
		return TChar<CharType>::IsAlpha(Char) ? (int32)TChar<CharType>::ToLower(Char) - 'a' + 10 : 99;
	}

	static uint64 MagnitudeImpl(const CharType* Start, CharType** OutEnd, int32 Base, bool& bOutNegative)
	{
		const CharType* Text = Start;
		while (TChar<CharType>::IsWhitespace(*Text))
		{
			++Text;
		}
		if (*Text == '-' || *Text == '+')
		{
			bOutNegative = *Text == '-';
			++Text;
		}
		if ((Base == 0 || Base == 16) && Text[0] == '0' && (Text[1] == 'x' || Text[1] == 'X') && TChar<CharType>::IsHexDigit(Text[2]))
		{
			Text += 2;
			Base = 16;
		}
		else if (Base == 0)
		{
			Base = *Text == '0' ? 8 : 10;
		}
		uint64 Value = 0;
		bool bOverflow = false;
		bool bAny = false;
		for (; DigitImpl(*Text) < Base; ++Text)
		{
			const uint64 Digit = (uint64)DigitImpl(*Text);
			bOverflow = bOverflow || Value > (MAX_uint64 - Digit) / (uint64)Base;
			Value = Value * (uint64)Base + Digit;
			bAny = true;
		}
		if (OutEnd != nullptr)
		{
			*OutEnd = const_cast<CharType*>(bAny ? Text : Start);
		}
		return bOverflow ? MAX_uint64 : Value;
	}
};

/** C string functions for TCHAR. */
struct FCString : TCString<TCHAR>
{
	/** Formats into Dest (DestSize characters with the terminator); yields the length or -1 when it does not fit. */
	template <SIZE_T FormatSize, typename... Types>
	static int32 Snprintf(TCHAR* Dest, SIZE_T DestSize, const TCHAR (&Fmt)[FormatSize], Types... Args)
	{
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to TCString::Snprintf");
		return SnprintfImpl(Dest, DestSize, Fmt, Args...);
	}

private:
	CORE_API static int32 VARARGS SnprintfImpl(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Fmt, ...);
};

typedef TCString<ANSICHAR> FCStringAnsi;
typedef TCString<WIDECHAR> FCStringWide;
