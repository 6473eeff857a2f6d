// Copyright The Tintmill authors. All rights reserved.

#include "Properties/ValueText.h"
#include "Misc/CString.h"

namespace StandInPrivate
{
namespace
{
bool IsBlankCharacter(TCHAR Char)
{
	return Char == TEXT(' ') || Char == TEXT('\t') || Char == TEXT('\r') || Char == TEXT('\n');
}

bool EndsToken(TCHAR Char)
{
	return Char == 0 || Char == TEXT(',') || Char == TEXT('(') || Char == TEXT(')') || Char == TEXT('"') || IsBlankCharacter(Char);
}

TCHAR Unescape(TCHAR Char)
{
	switch (Char)
	{
	case TEXT('n'):
		return TEXT('\n');
	case TEXT('r'):
		return TEXT('\r');
	case TEXT('t'):
		return TEXT('\t');
	default:
		return Char;
	}
}
}

const TCHAR* SkipBlanks(const TCHAR* Text)
{
	while (IsBlankCharacter(*Text))
	{
		++Text;
	}
	return Text;
}

const TCHAR* SkipField(const TCHAR* Text)
{
	int32 Depth = 0;
	bool bQuoted = false;
	for (; *Text != 0; ++Text)
	{
		if (bQuoted)
		{
			if (*Text == TEXT('\\') && Text[1] != 0)
			{
				++Text;
			}
			else if (*Text == TEXT('"'))
			{
				bQuoted = false;
			}
		}
		else if (*Text == TEXT('"'))
		{
			bQuoted = true;
		}
		else if (*Text == TEXT('('))
		{
			++Depth;
		}
		else if (Depth == 0 && (*Text == TEXT(',') || *Text == TEXT(')')))
		{
			return Text;
		}
		else if (*Text == TEXT(')'))
		{
			--Depth;
		}
	}
	return Text;
}

bool ReadQuoted(const TCHAR*& Text, FString& OutString, bool bEscapes)
{
	OutString.Reset();
	const TCHAR* Start = ++Text;
	while (*Text != 0 && *Text != TEXT('"'))
	{
		if (bEscapes && *Text == TEXT('\\') && Text[1] != 0)
		{
			OutString.AppendChars(Start, int32(Text - Start));
			++Text;
			const TCHAR Char = Unescape(*Text);
			OutString.AppendChars(&Char, 1);
			Start = Text + 1;
		}
		++Text;
	}
	OutString.AppendChars(Start, int32(Text - Start));
	if (*Text == 0)
	{
		return false;
	}
	++Text;
	return true;
}

FString ReadToken(const TCHAR*& Text)
{
	const TCHAR* Start = Text;
	while (!EndsToken(*Text))
	{
		++Text;
	}
	return FString(int32(Text - Start), Start);
}

bool ReadQuotedOrToken(const TCHAR*& Text, FString& OutString, bool bEscapes)
{
	if (*Text == TEXT('"'))
	{
		return ReadQuoted(Text, OutString, bEscapes);
	}
	OutString = ReadToken(Text);
	return true;
}

FString QuoteString(const FString& String)
{
	FString Result;
	Result.Reserve(String.Len() + 2);
	Result += TEXT('"');
	for (int32 Index = 0; Index < String.Len(); ++Index)
	{
		const TCHAR Char = String[Index];
		switch (Char)
		{
		case TEXT('\n'):
			Result += TEXT("\\n");
			break;
		case TEXT('\r'):
			Result += TEXT("\\r");
			break;
		case TEXT('\t'):
			Result += TEXT("\\t");
			break;
		case TEXT('\''):
		case TEXT('"'):
		case TEXT('\\'):
			Result += TEXT('\\');
			Result += Char;
			break;
		default:
			Result += Char;
			break;
		}
	}
	Result += TEXT('"');
	return Result;
}

FString Excerpt(const TCHAR* Text)
{
	const int32 MaxLength = 60;
	const int32 Length = int32(SkipField(Text) - Text);
	FString Result(Length < MaxLength ? Length : MaxLength, Text);
	Result.TrimEndInline();
	return Length > MaxLength ? Result + TEXT("...") : Result;
}

bool SkipWord(const TCHAR*& Text, const TCHAR* Word)
{
	const int32 Length = FCString::Strlen(Word);
	if (FCString::Strnicmp(Text, Word, SIZE_T(Length)) != 0)
	{
		return false;
	}
	Text += Length;
	return true;
}
}
