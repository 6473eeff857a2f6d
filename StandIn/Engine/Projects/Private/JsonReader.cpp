// Copyright The Tintmill authors. All rights reserved.

#include "JsonReader.h"

#include <cstdlib>

namespace StandInPrivate
{
namespace
{
/** Deeper nesting is somebody's joke. */
const int32 MaxJsonDepth = 64;

class FJsonParser
{
public:
	FJsonParser(const FString& InText, FJsonError& InError)
		: At(*InText)
		, End(*InText + InText.Len())
		, Error(InError)
	{}

	bool Read(FJsonValue& Out)
	{
		SkipBlanks();
		if (!ReadValue(Out, 0))
		{
			return false;
		}
		SkipBlanks();
		return At == End || Fail(TEXT("there is text behind the last brace"));
	}

private:
	bool Fail(const FString& Text)
	{
		Error.Line = Line;
		Error.Text = Text;
		return false;
	}

	void SkipBlanks()
	{
		for (; At < End && (*At == ' ' || *At == '\t' || *At == '\r' || *At == '\n'); ++At)
		{
			Line += *At == '\n' ? 1 : 0;
		}
	}

	/** What stands here, for an error text. */
	FString Here() const
	{
		if (At == End)
		{
			return TEXT("the end of the file");
		}
		return uint16(*At) < 0x20 ? FString::Printf(TEXT("character %d"), int32(*At)) : FString::Printf(TEXT("'%c'"), *At);
	}

	bool Take(TCHAR Char)
	{
		SkipBlanks();
		if (At == End || *At != Char)
		{
			return false;
		}
		++At;
		return true;
	}

	bool ReadValue(FJsonValue& Out, int32 Depth)
	{
		Out.Line = Line;
		if (Depth > MaxJsonDepth)
		{
			return Fail(TEXT("values are nested too deeply"));
		}
		if (At == End)
		{
			return Fail(TEXT("a value is missing at the end of the file"));
		}
		switch (*At)
		{
		case '{':
			return ReadObject(Out, Depth);
		case '[':
			return ReadArray(Out, Depth);
		case '"':
			Out.Type = FJsonValue::EType::String;
			return ReadString(Out.String);
		case 't':
			Out.Type = FJsonValue::EType::Boolean;
			Out.bBoolean = true;
			return ReadWord("true");
		case 'f':
			Out.Type = FJsonValue::EType::Boolean;
			return ReadWord("false");
		case 'n':
			return ReadWord("null");
		default:
			return ReadNumber(Out);
		}
	}

	bool ReadWord(const char* Word)
	{
		for (; *Word; ++Word, ++At)
		{
			if (At == End || *At != TCHAR(*Word))
			{
				return Fail(TEXT("a value is misspelt: only true, false and null are written without quotes"));
			}
		}
		return true;
	}

	bool ReadNumber(FJsonValue& Out)
	{
		std::string Digits;
		const auto TakeDigits = [&] {
			const size_t Before = Digits.size();
			for (; At < End && *At >= '0' && *At <= '9'; ++At)
			{
				Digits += char(*At);
			}
			return Digits.size() > Before;
		};
		const auto TakeOne = [&](TCHAR A, TCHAR B) {
			const bool bTaken = At < End && (*At == A || *At == B);
			Digits += bTaken ? std::string(1, char(*At)) : std::string();
			At += bTaken ? 1 : 0;
			return bTaken;
		};
		const FString Start = Here();
		TakeOne('-', '-');
		const bool bZero = At < End && *At == '0';
		const size_t Before = Digits.size();
		if (!TakeDigits())
		{
			return Fail(FString::Printf(TEXT("a value was expected but %s stands here"), *Start));
		}
		const bool bBadZero = bZero && Digits.size() > Before + 1;
		const bool bBadFraction = TakeOne('.', '.') && !TakeDigits();
		bool bBadExponent = false;
		if (TakeOne('e', 'E'))
		{
			TakeOne('+', '-');
			bBadExponent = !TakeDigits();
		}
		if (bBadZero || bBadFraction || bBadExponent)
		{
			return Fail(TEXT("a number is malformed"));
		}
		Out.Type = FJsonValue::EType::Number;
		Out.Number = std::strtod(Digits.c_str(), nullptr);
		return true;
	}

	bool ReadHex(uint32& Out)
	{
		Out = 0;
		for (int32 Index = 0; Index < 4; ++Index, ++At)
		{
			const TCHAR Char = At < End ? *At : TCHAR(0);
			const bool bDigit = Char >= '0' && Char <= '9';
			const bool bLetter = (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F');
			if (!bDigit && !bLetter)
			{
				return false;
			}
			Out = Out * 16 + uint32(bDigit ? Char - '0' : (Char | 0x20) - 'a' + 10);
		}
		return true;
	}

	bool ReadEscape(std::basic_string<TCHAR>& Out)
	{
		const TCHAR Char = At < End ? *At++ : TCHAR(0);
		uint32 Code = 0;
		switch (Char)
		{
		case '"':
		case '\\':
		case '/':
			Out += Char;
			return true;
		case 'b':
			Out += TCHAR('\b');
			return true;
		case 'f':
			Out += TCHAR('\f');
			return true;
		case 'n':
			Out += TCHAR('\n');
			return true;
		case 'r':
			Out += TCHAR('\r');
			return true;
		case 't':
			Out += TCHAR('\t');
			return true;
		case 'u':
			if (ReadHex(Code) && Code != 0)
			{
				Out += TCHAR(Code);
				return true;
			}
			return Fail(TEXT("a string has a malformed \\u escape"));
		default:
			return Fail(TEXT("a string has an unknown escape; a backslash is written as two"));
		}
	}

	bool ReadString(FString& Out)
	{
		std::basic_string<TCHAR> Chars;
		++At;
		while (At < End && *At != '"')
		{
			if (uint16(*At) < 0x20)
			{
				return Fail(TEXT("a string is not closed in its line"));
			}
			if (*At != '\\')
			{
				Chars += *At++;
			}
			else
			{
				++At;
				if (!ReadEscape(Chars))
				{
					return false;
				}
			}
		}
		if (At == End)
		{
			return Fail(TEXT("a string is not closed"));
		}
		++At;
		Out = FString(Chars.c_str());
		return true;
	}

	bool ReadArray(FJsonValue& Out, int32 Depth)
	{
		Out.Type = FJsonValue::EType::Array;
		++At;
		if (Take(']'))
		{
			return true;
		}
		for (;;)
		{
			SkipBlanks();
			FJsonValue Element;
			if (!ReadValue(Element, Depth + 1))
			{
				return false;
			}
			Out.Elements.push_back(std::move(Element));
			if (Take(']'))
			{
				return true;
			}
			if (!Take(','))
			{
				return Fail(FString::Printf(TEXT("a comma or ] was expected but %s stands here"), *Here()));
			}
		}
	}

	bool ReadObject(FJsonValue& Out, int32 Depth)
	{
		Out.Type = FJsonValue::EType::Object;
		++At;
		if (Take('}'))
		{
			return true;
		}
		for (;;)
		{
			SkipBlanks();
			if (At == End || *At != '"')
			{
				return Fail(FString::Printf(TEXT("a field name in quotes was expected but %s stands here"), *Here()));
			}
			FString Name;
			if (!ReadString(Name))
			{
				return false;
			}
			if (Out.FindField(*Name))
			{
				return Fail(FString::Printf(TEXT("the field \"%s\" stands twice"), *Name));
			}
			if (!Take(':'))
			{
				return Fail(FString::Printf(TEXT("a colon was expected behind \"%s\" but %s stands here"), *Name, *Here()));
			}
			SkipBlanks();
			FJsonValue Value;
			if (!ReadValue(Value, Depth + 1))
			{
				return false;
			}
			Out.Names.push_back(Name);
			Out.Elements.push_back(std::move(Value));
			if (Take('}'))
			{
				return true;
			}
			if (!Take(','))
			{
				return Fail(FString::Printf(TEXT("a comma or } was expected but %s stands here"), *Here()));
			}
		}
	}

	const TCHAR* At;
	const TCHAR* End;
	int32 Line = 1;
	FJsonError& Error;
};
}

const FJsonValue* FJsonValue::FindField(const TCHAR* Name) const
{
	for (size_t Index = 0; Index < Names.size(); ++Index)
	{
		if (Names[Index].Equals(Name))
		{
			return &Elements[Index];
		}
	}
	return nullptr;
}

const TCHAR* FJsonValue::Describe() const
{
	switch (Type)
	{
	case EType::Boolean:
		return TEXT("true or false");
	case EType::Number:
		return TEXT("a number");
	case EType::String:
		return TEXT("a text in quotes");
	case EType::Array:
		return TEXT("a list");
	case EType::Object:
		return TEXT("an object");
	default:
		return TEXT("null");
	}
}

bool ReadJson(const FString& Text, FJsonValue& OutValue, FJsonError& OutError)
{
	return FJsonParser(Text, OutError).Read(OutValue);
}
}
