// Copyright The Tintmill authors. All rights reserved.

#include "Containers/UnrealString.h"

#include "StandIn/FatalHandler.h"
#include <charconv>
#include <cmath>
#include <string>

// The stand-in's printf for TCHAR: flags - + blank # 0, width, precision (both also *), lengths hh h l ll I64 z t j, conversions
// d i u x X o c s S f F e E g G p %.

namespace
{
typedef std::basic_string<TCHAR> FBuffer;

/** One conversion: what stands between the % and its letter. */
struct FConversion
{
	bool bLeft = false;
	bool bPlus = false;
	bool bBlank = false;
	bool bAlternate = false;
	bool bZero = false;
	int32 Width = 0;
	int32 Precision = -1;
	int32 Bytes = sizeof(int);
	bool bNarrow = false;
	TCHAR Letter = 0;
};

/** The variable arguments, so that they can be handed on by reference. */
struct FArguments
{
	va_list List;
};

/** Appends a sign or prefix and a body, padded to the conversion's width. */
void AppendPadded(FBuffer& Out, const FConversion& Conversion, const std::string& Prefix, const FBuffer& Body, bool bZeroPad)
{
	const std::size_t Length = Prefix.size() + Body.size();
	const std::size_t Padding = (std::size_t)Conversion.Width > Length ? (std::size_t)Conversion.Width - Length : 0;
	if (!Conversion.bLeft && !bZeroPad)
	{
		Out.append(Padding, TCHAR(' '));
	}
	Out.append(Prefix.begin(), Prefix.end());
	if (!Conversion.bLeft && bZeroPad)
	{
		Out.append(Padding, TCHAR('0'));
	}
	Out += Body;
	if (Conversion.bLeft)
	{
		Out.append(Padding, TCHAR(' '));
	}
}

FBuffer Widen(const std::string& Text)
{
	return FBuffer(Text.begin(), Text.end());
}

std::string SignPrefix(const FConversion& Conversion, bool bNegative)
{
	return bNegative ? "-" : Conversion.bPlus ? "+" : Conversion.bBlank ? " " : "";
}

void AppendInteger(FBuffer& Out, const FConversion& Conversion, uint64 Magnitude, const std::string& Sign)
{
	const int Base = Conversion.Letter == 'x' || Conversion.Letter == 'X' ? 16 : Conversion.Letter == 'o' ? 8 : 10;
	char Digits[32];
	const std::to_chars_result Result = std::to_chars(Digits, Digits + sizeof(Digits), Magnitude, Base);
	std::string Text(Digits, Result.ptr);
	if (Magnitude == 0 && Conversion.Precision == 0)
	{
		Text.clear();
	}
	std::string Prefix = Sign;
	if (Conversion.bAlternate && Base == 16 && Magnitude != 0)
	{
		Prefix = "0x";
	}
	if (Conversion.bAlternate && Base == 8 && (Text.empty() || Text[0] != '0'))
	{
		Text.insert(Text.begin(), '0');
	}
	if ((int32)Text.size() < Conversion.Precision)
	{
		Text.insert(0, (std::size_t)Conversion.Precision - Text.size(), '0');
	}
	if (Conversion.Letter == 'X')
	{
		for (char& Char : Text)
		{
			Char = FCharAnsi::ToUpper(Char);
		}
		Prefix = Prefix == "0x" ? "0X" : Prefix;
	}
	AppendPadded(Out, Conversion, Prefix, Widen(Text), Conversion.bZero && Conversion.Precision < 0);
}

void AppendFloating(FBuffer& Out, const FConversion& Conversion, double Value)
{
	if (Conversion.bAlternate)
	{
		STANDIN_MISSING(TEXT("FString::Printf with # before a floating-point conversion"));
	}
	const char Kind = (char)FChar::ToLower(Conversion.Letter);
	const std::chars_format Format = Kind == 'f' ? std::chars_format::fixed
		: Kind == 'e'                            ? std::chars_format::scientific
												 : std::chars_format::general;
	const int32 Precision = Conversion.Precision < 0 ? 6 : Conversion.Precision;
	std::string Text((std::size_t)Precision + 400, '\0');
	const std::to_chars_result Result = std::to_chars(Text.data(), Text.data() + Text.size(), std::fabs(Value), Format, Precision);
	Text.resize((std::size_t)(Result.ptr - Text.data()));
	if (Conversion.Letter != TCHAR(Kind))
	{
		for (char& Char : Text)
		{
			Char = FCharAnsi::ToUpper(Char);
		}
	}
	AppendPadded(Out, Conversion, SignPrefix(Conversion, std::signbit(Value)), Widen(Text), Conversion.bZero && std::isfinite(Value));
}

void AppendText(FBuffer& Out, const FConversion& Conversion, const TCHAR* Text)
{
	const TCHAR* Shown = Text != nullptr ? Text : TEXT("(null)");
	const int32 Length = Conversion.Precision < 0 ? FCString::Strlen(Shown) : FCString::Strnlen(Shown, (SIZE_T)Conversion.Precision);
	AppendPadded(Out, Conversion, "", FBuffer(Shown, (std::size_t)Length), false);
}

void AppendNarrowText(FBuffer& Out, const FConversion& Conversion, const ANSICHAR* Text)
{
	if (Text == nullptr)
	{
		AppendText(Out, Conversion, nullptr);
		return;
	}
	const int32 Length = Conversion.Precision < 0 ? FCStringAnsi::Strlen(Text) : FCStringAnsi::Strnlen(Text, (SIZE_T)Conversion.Precision);
	const FANSIToTCHAR Wide(Text, Length);
	AppendPadded(Out, Conversion, "", FBuffer(Wide.Get(), (std::size_t)Wide.Length()), false);
}

int64 TakeSigned(const FConversion& Conversion, FArguments& Arguments)
{
	switch (Conversion.Bytes)
	{
	case 1:
		return (int8)va_arg(Arguments.List, int);
	case 2:
		return (int16)va_arg(Arguments.List, int);
	case 8:
		return va_arg(Arguments.List, int64);
	default:
		return va_arg(Arguments.List, int);
	}
}

uint64 TakeUnsigned(const FConversion& Conversion, FArguments& Arguments)
{
	switch (Conversion.Bytes)
	{
	case 1:
		return (uint8)va_arg(Arguments.List, int);
	case 2:
		return (uint16)va_arg(Arguments.List, int);
	case 8:
		return va_arg(Arguments.List, uint64);
	default:
		return va_arg(Arguments.List, unsigned int);
	}
}

int32 ReadNumber(const TCHAR*& Format, FArguments& Arguments)
{
	if (*Format == '*')
	{
		++Format;
		return va_arg(Arguments.List, int);
	}
	int32 Number = 0;
	for (; FChar::IsDigit(*Format); ++Format)
	{
		Number = Number * 10 + FChar::ConvertCharDigitToInt(*Format);
	}
	return Number;
}

void ReadFlags(const TCHAR*& Format, FConversion& Conversion)
{
	for (;; ++Format)
	{
		switch (*Format)
		{
		case '-':
			Conversion.bLeft = true;
			break;
		case '+':
			Conversion.bPlus = true;
			break;
		case ' ':
			Conversion.bBlank = true;
			break;
		case '#':
			Conversion.bAlternate = true;
			break;
		case '0':
			Conversion.bZero = true;
			break;
		default:
			return;
		}
	}
}

void ReadLength(const TCHAR*& Format, FConversion& Conversion)
{
	if (Format[0] == 'h' && Format[1] == 'h')
	{
		Conversion.Bytes = 1;
		Format += 2;
	}
	else if (*Format == 'h')
	{
		Conversion.Bytes = 2;
		Conversion.bNarrow = true;
		++Format;
	}
	else if (Format[0] == 'l' && Format[1] == 'l')
	{
		Conversion.Bytes = 8;
		Format += 2;
	}
	else if (*Format == 'l')
	{
		Conversion.Bytes = sizeof(long);
		++Format;
	}
	else if (Format[0] == 'I' && Format[1] == '6' && Format[2] == '4')
	{
		Conversion.Bytes = 8;
		Format += 3;
	}
	else if (*Format == 'z' || *Format == 't' || *Format == 'j')
	{
		Conversion.Bytes = 8;
		++Format;
	}
}

/** Reads one conversion after its % and appends the argument it takes. */
void AppendConversion(FBuffer& Out, const TCHAR*& Format, FArguments& Arguments)
{
	FConversion Conversion;
	ReadFlags(Format, Conversion);
	Conversion.Width = ReadNumber(Format, Arguments);
	if (Conversion.Width < 0)
	{
		Conversion.bLeft = true;
		Conversion.Width = -Conversion.Width;
	}
	if (*Format == '.')
	{
		++Format;
		Conversion.Precision = ReadNumber(Format, Arguments);
	}
	ReadLength(Format, Conversion);
	Conversion.Letter = *Format;
	checkf(Conversion.Letter != 0, TEXT("A format ends inside a conversion."));
	++Format;

	switch (Conversion.Letter)
	{
	case 'd':
	case 'i':
	{
		const int64 Value = TakeSigned(Conversion, Arguments);
		AppendInteger(Out, Conversion, Value < 0 ? 0 - (uint64)Value : (uint64)Value, SignPrefix(Conversion, Value < 0));
		break;
	}
	case 'u':
	case 'x':
	case 'X':
	case 'o':
		AppendInteger(Out, Conversion, TakeUnsigned(Conversion, Arguments), "");
		break;
	case 'f':
	case 'F':
	case 'e':
	case 'E':
	case 'g':
	case 'G':
		AppendFloating(Out, Conversion, va_arg(Arguments.List, double));
		break;
	case 'c':
		AppendPadded(Out, Conversion, "", FBuffer(1, (TCHAR)va_arg(Arguments.List, int)), false);
		break;
	case 's':
		if (Conversion.bNarrow)
		{
			AppendNarrowText(Out, Conversion, va_arg(Arguments.List, const ANSICHAR*));
		}
		else
		{
			AppendText(Out, Conversion, va_arg(Arguments.List, const TCHAR*));
		}
		break;
	case 'S':
		AppendNarrowText(Out, Conversion, va_arg(Arguments.List, const ANSICHAR*));
		break;
	case 'p':
	{
		FConversion Address = Conversion;
		Address.Letter = 'x';
		Address.Precision = 16;
		FBuffer Digits;
		Address.Width = 0;
		AppendInteger(Digits, Address, (uint64)(UPTRINT)va_arg(Arguments.List, void*), "");
		AppendPadded(Out, Conversion, "0x", Digits, false);
		break;
	}
	case '%':
		Out += TCHAR('%');
		break;
	default:
		LowLevelFatalError(TEXT("Unknown conversion in a format: %%%c"), Conversion.Letter);
	}
}

FBuffer FormatToBuffer(const TCHAR* Format, va_list Args)
{
	FBuffer Out;
	FArguments Arguments;
	va_copy(Arguments.List, Args);
	while (*Format != 0)
	{
		if (*Format != '%')
		{
			Out += *Format++;
			continue;
		}
		++Format;
		AppendConversion(Out, Format, Arguments);
	}
	va_end(Arguments.List);
	return Out;
}
}

int32 StandIn::FormatV(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, va_list Args)
{
	const FBuffer Text = FormatToBuffer(Format, Args);
	if (DestSize == 0)
	{
		return -1;
	}
	const bool bFits = Text.size() < DestSize;
	const SIZE_T Count = bFits ? Text.size() : DestSize - 1;
	FMemory::Memcpy(Dest, Text.data(), Count * sizeof(TCHAR));
	Dest[Count] = 0;
	return bFits ? (int32)Count : -1;
}

FString StandIn::FormatVString(const TCHAR* Format, va_list Args)
{
	const FBuffer Text = FormatToBuffer(Format, Args);
	return FString((int32)Text.size(), Text.data());
}
