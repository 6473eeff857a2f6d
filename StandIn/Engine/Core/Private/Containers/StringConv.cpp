// Copyright The Tintmill authors. All rights reserved.

#include "Containers/StringConv.h"

namespace
{
/** Counts what is written, and writes it if there is somewhere to. */
template <typename CharType>
struct TConversionSink
{
	CharType* Dest;
	int32 Count = 0;

	void Put(uint32 Unit)
	{
		if (Dest != nullptr)
		{
			Dest[Count] = (CharType)Unit;
		}
		++Count;
	}
};

/** Reads one code point at Source[InOutIndex]; a bad unit is skipped alone and reads as '?'. */
uint32 ReadUtf8(const ANSICHAR* Source, int32 Length, int32& InOutIndex)
{
	const uint32 Lead = (uint8)Source[InOutIndex++];
	if (Lead < 0x80)
	{
		return Lead;
	}
	const int32 NumMore = Lead >= 0xf0 && Lead <= 0xf4 ? 3 : Lead >= 0xe0 && Lead < 0xf0 ? 2 : Lead >= 0xc2 && Lead < 0xe0 ? 1 : 0;
	if (NumMore == 0 || InOutIndex + NumMore > Length)
	{
		return UNICODE_BOGUS_CHAR_CODEPOINT;
	}
	uint32 Codepoint = Lead & (0x3fu >> NumMore);
	for (int32 Offset = 0; Offset < NumMore; ++Offset)
	{
		const uint32 More = (uint8)Source[InOutIndex + Offset];
		if ((More & 0xc0) != 0x80)
		{
			return UNICODE_BOGUS_CHAR_CODEPOINT;
		}
		Codepoint = (Codepoint << 6) | (More & 0x3f);
	}
	const bool bOverlong = (NumMore == 2 && Codepoint < 0x800) || (NumMore == 3 && Codepoint < 0x10000);
	const bool bSurrogate = Codepoint >= 0xd800 && Codepoint <= 0xdfff;
	if (bOverlong || bSurrogate || Codepoint > 0x10ffff)
	{
		return UNICODE_BOGUS_CHAR_CODEPOINT;
	}
	InOutIndex += NumMore;
	return Codepoint;
}

/** Reads one code point at Source[InOutIndex]; a surrogate without its other half reads as '?'. */
uint32 ReadUtf16(const TCHAR* Source, int32 Length, int32& InOutIndex)
{
	const uint32 Unit = (uint16)Source[InOutIndex++];
	if (Unit < 0xd800 || Unit > 0xdfff)
	{
		return Unit;
	}
	const uint32 Next = InOutIndex < Length ? (uint16)Source[InOutIndex] : 0;
	if (Unit > 0xdbff || Next < 0xdc00 || Next > 0xdfff)
	{
		return UNICODE_BOGUS_CHAR_CODEPOINT;
	}
	++InOutIndex;
	return 0x10000 + ((Unit - 0xd800) << 10) + (Next - 0xdc00);
}
}

int32 StandIn::ConvertToUtf8(const TCHAR* Source, int32 SourceLength, ANSICHAR* Dest)
{
	TConversionSink<ANSICHAR> Sink{Dest};
	for (int32 Index = 0; Index < SourceLength;)
	{
		const uint32 Codepoint = ReadUtf16(Source, SourceLength, Index);
		if (Codepoint < 0x80)
		{
			Sink.Put(Codepoint);
		}
		else if (Codepoint < 0x800)
		{
			Sink.Put(0xc0 | (Codepoint >> 6));
			Sink.Put(0x80 | (Codepoint & 0x3f));
		}
		else if (Codepoint < 0x10000)
		{
			Sink.Put(0xe0 | (Codepoint >> 12));
			Sink.Put(0x80 | ((Codepoint >> 6) & 0x3f));
			Sink.Put(0x80 | (Codepoint & 0x3f));
		}
		else
		{
			Sink.Put(0xf0 | (Codepoint >> 18));
			Sink.Put(0x80 | ((Codepoint >> 12) & 0x3f));
			Sink.Put(0x80 | ((Codepoint >> 6) & 0x3f));
			Sink.Put(0x80 | (Codepoint & 0x3f));
		}
	}
	return Sink.Count;
}

int32 StandIn::ConvertFromUtf8(const ANSICHAR* Source, int32 SourceLength, TCHAR* Dest)
{
	TConversionSink<TCHAR> Sink{Dest};
	for (int32 Index = 0; Index < SourceLength;)
	{
		const uint32 Codepoint = ReadUtf8(Source, SourceLength, Index);
		if (Codepoint < 0x10000)
		{
			Sink.Put(Codepoint);
		}
		else
		{
			Sink.Put(0xd800 + ((Codepoint - 0x10000) >> 10));
			Sink.Put(0xdc00 + ((Codepoint - 0x10000) & 0x3ff));
		}
	}
	return Sink.Count;
}

int32 StandIn::ConvertToAnsi(const TCHAR* Source, int32 SourceLength, ANSICHAR* Dest)
{
	TConversionSink<ANSICHAR> Sink{Dest};
	for (int32 Index = 0; Index < SourceLength; ++Index)
	{
		const uint32 Unit = (uint16)Source[Index];
		Sink.Put(Unit < 0x80 ? Unit : (uint32)UNICODE_BOGUS_CHAR_CODEPOINT);
	}
	return Sink.Count;
}

int32 StandIn::ConvertFromAnsi(const ANSICHAR* Source, int32 SourceLength, TCHAR* Dest)
{
	TConversionSink<TCHAR> Sink{Dest};
	for (int32 Index = 0; Index < SourceLength; ++Index)
	{
		Sink.Put((uint8)Source[Index]);
	}
	return Sink.Count;
}
