// Copyright The Tintmill authors. All rights reserved.

#include "Misc/TextCodec.h"

namespace StandInPrivate
{
namespace
{
const uint32 ReplacementCharacter = 0xfffd;

/** Reads one code point of UTF-8 and moves behind it; false (one byte consumed) when the bytes are not UTF-8. */
bool ReadUtf8(const uint8*& At, const uint8* End, uint32& OutCode)
{
	const uint8 First = *At++;
	if (First < 0x80)
	{
		OutCode = First;
		return true;
	}
	const int32 Extra = First >= 0xf0 ? 3 : First >= 0xe0 ? 2 : 1;
	if (First < 0xc2 || First > 0xf4 || End - At < Extra)
	{
		OutCode = ReplacementCharacter;
		return false;
	}
	uint32 Code = First & (0x3f >> Extra);
	for (int32 Index = 0; Index < Extra; ++Index)
	{
		if ((At[Index] & 0xc0) != 0x80)
		{
			OutCode = ReplacementCharacter;
			return false;
		}
		Code = (Code << 6) | (At[Index] & 0x3f);
	}
	const bool bTooLong = (Extra == 2 && Code < 0x800) || (Extra == 3 && Code < 0x10000);
	if (bTooLong || Code > 0x10ffff || (Code >= 0xd800 && Code <= 0xdfff))
	{
		OutCode = ReplacementCharacter;
		return false;
	}
	At += Extra;
	OutCode = Code;
	return true;
}

/** Reads one code point of UTF-16 bytes and moves behind it; false when a half is missing. */
bool ReadUtf16(const uint8*& At, const uint8* End, bool bBigEndian, uint32& OutCode)
{
	const auto Unit = [bBigEndian](const uint8* Where) -> uint32 {
		return bBigEndian ? uint32(Where[0]) << 8 | Where[1] : uint32(Where[1]) << 8 | Where[0];
	};
	OutCode = ReplacementCharacter;
	if (End - At < 2)
	{
		At = End;
		return false;
	}
	const uint32 First = Unit(At);
	At += 2;
	if (First < 0xd800 || First > 0xdfff)
	{
		OutCode = First;
		return true;
	}
	if (First > 0xdbff || End - At < 2)
	{
		return false;
	}
	const uint32 Second = Unit(At);
	if (Second < 0xdc00 || Second > 0xdfff)
	{
		return false;
	}
	At += 2;
	OutCode = 0x10000 + ((First - 0xd800) << 10) + (Second - 0xdc00);
	return true;
}

/** Calls Visit(code point, whether the bytes were good) for a whole text behind its byte order mark. */
template <typename TVisit>
void VisitText(const uint8* Bytes, int64 NumBytes, const TVisit& Visit)
{
	const uint8* At = Bytes;
	const uint8* const End = Bytes + NumBytes;
	const bool bLittleMark = NumBytes >= 2 && Bytes[0] == 0xff && Bytes[1] == 0xfe;
	const bool bBigMark = NumBytes >= 2 && Bytes[0] == 0xfe && Bytes[1] == 0xff;
	if (bLittleMark || bBigMark)
	{
		At += 2;
	}
	else if (NumBytes >= 3 && Bytes[0] == 0xef && Bytes[1] == 0xbb && Bytes[2] == 0xbf)
	{
		At += 3;
	}
	while (At < End)
	{
		uint32 Code = 0;
		const bool bGood = bLittleMark || bBigMark ? ReadUtf16(At, End, bBigMark, Code) : ReadUtf8(At, End, Code);
		Visit(Code, bGood);
	}
}

void AppendCode(std::basic_string<TCHAR>& Out, uint32 Code)
{
	if (Code < 0x10000)
	{
		Out += TCHAR(Code);
	}
	else
	{
		Out += TCHAR(0xd800 + ((Code - 0x10000) >> 10));
		Out += TCHAR(0xdc00 + ((Code - 0x10000) & 0x3ff));
	}
}
}

FString DecodeText(const uint8* Bytes, int64 NumBytes)
{
	std::basic_string<TCHAR> Out;
	VisitText(Bytes, NumBytes, [&Out](uint32 Code, bool) {
		if (Code != 0)
		{
			AppendCode(Out, Code);
		}
	});
	return FString(Out.c_str());
}

std::vector<FTextLine> DecodeLines(const uint8* Bytes, int64 NumBytes)
{
	std::vector<FTextLine> Lines;
	FTextLine Line;
	bool bAfterReturn = false;
	bool bLineBegun = false;
	VisitText(Bytes, NumBytes, [&](uint32 Code, bool bGood) {
		if (Code == '\n' && bAfterReturn)
		{
			bAfterReturn = false;
			return;
		}
		bAfterReturn = Code == '\r';
		if (Code == '\r' || Code == '\n')
		{
			Lines.push_back(std::move(Line));
			Line = FTextLine();
			bLineBegun = false;
			return;
		}
		bLineBegun = true;
		if (!bGood || (Code < 0x20 && Code != '\t') || Code == 0x7f)
		{
			Line.bReadable = false;
		}
		AppendCode(Line.Text, Code);
	});
	if (bLineBegun)
	{
		Lines.push_back(std::move(Line));
	}
	return Lines;
}

std::string ToUtf8(const TCHAR* Text, int64 Length)
{
	std::string Out;
	Out.reserve(size_t(Length));
	for (int64 Index = 0; Index < Length; ++Index)
	{
		uint32 Code = uint16(Text[Index]);
		if (Code >= 0xd800 && Code <= 0xdfff)
		{
			const uint32 Second = Index + 1 < Length ? uint16(Text[Index + 1]) : 0;
			if (Code <= 0xdbff && Second >= 0xdc00 && Second <= 0xdfff)
			{
				Code = 0x10000 + ((Code - 0xd800) << 10) + (Second - 0xdc00);
				++Index;
			}
			else
			{
				Code = ReplacementCharacter;
			}
		}
		if (Code < 0x80)
		{
			Out += char(Code);
		}
		else if (Code < 0x800)
		{
			Out += char(0xc0 | (Code >> 6));
			Out += char(0x80 | (Code & 0x3f));
		}
		else if (Code < 0x10000)
		{
			Out += char(0xe0 | (Code >> 12));
			Out += char(0x80 | ((Code >> 6) & 0x3f));
			Out += char(0x80 | (Code & 0x3f));
		}
		else
		{
			Out += char(0xf0 | (Code >> 18));
			Out += char(0x80 | ((Code >> 12) & 0x3f));
			Out += char(0x80 | ((Code >> 6) & 0x3f));
			Out += char(0x80 | (Code & 0x3f));
		}
	}
	return Out;
}

std::string ToUtf8(const FString& Text)
{
	return ToUtf8(*Text, Text.Len());
}
}
