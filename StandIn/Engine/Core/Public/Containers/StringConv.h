// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/CString.h"
#include "HAL/UnrealMemory.h"

// Conversions between TCHAR (UTF-16), UTF-8 and ASCII. What is not valid (lone surrogates, broken or overlong sequences, code points
// above U+10FFFF) becomes one '?' for each bad unit, as does what has no place in the target. Bytes above 127 read as ANSI are Latin-1.

#define UNICODE_BOGUS_CHAR_CODEPOINT '?'

namespace StandIn
{
/** Converts UTF-16 to UTF-8; null Dest only counts; yields the number of bytes. */
CORE_API int32 ConvertToUtf8(const TCHAR* Source, int32 SourceLength, ANSICHAR* Dest);

/** Converts UTF-8 to UTF-16; null Dest only counts; yields the number of TCHARs. */
CORE_API int32 ConvertFromUtf8(const ANSICHAR* Source, int32 SourceLength, TCHAR* Dest);

/** Converts UTF-16 to ASCII; null Dest only counts; yields the number of characters. */
CORE_API int32 ConvertToAnsi(const TCHAR* Source, int32 SourceLength, ANSICHAR* Dest);

/** Widens ANSI to UTF-16; null Dest only counts; yields the number of characters. */
CORE_API int32 ConvertFromAnsi(const ANSICHAR* Source, int32 SourceLength, TCHAR* Dest);
}

/** Conversion from TCHAR to UTF-8, for TStringConversion. */
struct FTCHARToUTF8_Convert
{
	typedef TCHAR FromType;
	typedef ANSICHAR ToType;

	/** Converts, or counts when Dest is null. */
	static int32 Run(const FromType* Source, int32 Length, ToType* Dest) { return StandIn::ConvertToUtf8(Source, Length, Dest); }
};

/** Conversion from UTF-8 to TCHAR, for TStringConversion. */
struct FUTF8ToTCHAR_Convert
{
	typedef ANSICHAR FromType;
	typedef TCHAR ToType;

	/** Converts, or counts when Dest is null. */
	static int32 Run(const FromType* Source, int32 Length, ToType* Dest) { return StandIn::ConvertFromUtf8(Source, Length, Dest); }
};

/** Conversion from TCHAR to ASCII, for TStringConversion. */
struct FTCHARToANSI_Convert
{
	typedef TCHAR FromType;
	typedef ANSICHAR ToType;

	/** Converts, or counts when Dest is null. */
	static int32 Run(const FromType* Source, int32 Length, ToType* Dest) { return StandIn::ConvertToAnsi(Source, Length, Dest); }
};

/** Conversion from ANSI to TCHAR, for TStringConversion. */
struct FANSIToTCHAR_Convert
{
	typedef ANSICHAR FromType;
	typedef TCHAR ToType;

	/** Converts, or counts when Dest is null. */
	static int32 Run(const FromType* Source, int32 Length, ToType* Dest) { return StandIn::ConvertFromAnsi(Source, Length, Dest); }
};

/** Holds a converted copy of a string for as long as it lives; a null source gives a null result. */
template <typename Converter, int32 DefaultConversionSize = 128>
class TStringConversion
{
public:
	typedef typename Converter::FromType FromType;
	typedef typename Converter::ToType ToType;

	/** Converts a terminated string, or null. */
	explicit TStringConversion(const FromType* Source) { Init(Source, Source != nullptr ? TCString<FromType>::Strlen(Source) : 0); }

	/** Converts the first SourceLen characters. */
	TStringConversion(const FromType* Source, int32 SourceLen) { Init(Source, SourceLen); }

	TStringConversion(TStringConversion&& Other) { MoveFrom(Other); }
	TStringConversion(const TStringConversion&) = delete;
	TStringConversion& operator=(const TStringConversion&) = delete;
	TStringConversion& operator=(TStringConversion&&) = delete;
	~TStringConversion() { FMemory::Free(Heap); }

	/** The converted, terminated string, or null. */
	const ToType* Get() const { return Ptr; }

	/** Length of the converted string without the terminator. */
	int32 Length() const { return StringLength; }

private:
	void Init(const FromType* Source, int32 SourceLength)
	{
		if (Source == nullptr)
		{
			return;
		}
		StringLength = Converter::Run(Source, SourceLength, nullptr);
		Ptr = Buffer;
		if (StringLength >= DefaultConversionSize)
		{
			Heap = static_cast<ToType*>(FMemory::Malloc(sizeof(ToType) * ((SIZE_T)StringLength + 1)));
			Ptr = Heap;
		}
		Converter::Run(Source, SourceLength, Ptr);
		Ptr[StringLength] = 0;
	}

	void MoveFrom(TStringConversion& Other)
	{
		StringLength = Other.StringLength;
		Heap = Other.Heap;
		Other.Heap = nullptr;
		if (Other.Ptr == Other.Buffer)
		{
			Ptr = Buffer;
			FMemory::Memcpy(Buffer, Other.Buffer, sizeof(Buffer));
		}
		else
		{
			Ptr = Other.Ptr;
		}
		Other.Ptr = nullptr;
		Other.StringLength = 0;
	}

	ToType* Ptr = nullptr;
	ToType* Heap = nullptr;
	int32 StringLength = 0;
	ToType Buffer[DefaultConversionSize];
};

typedef TStringConversion<FTCHARToUTF8_Convert> FTCHARToUTF8;
typedef TStringConversion<FUTF8ToTCHAR_Convert> FUTF8ToTCHAR;
typedef TStringConversion<FTCHARToANSI_Convert> FTCHARToANSI;
typedef TStringConversion<FANSIToTCHAR_Convert> FANSIToTCHAR;

// The pointers of these macros are gone at the end of the full expression.
#define TCHAR_TO_UTF8(str) (ANSICHAR*)FTCHARToUTF8((const TCHAR*)str).Get()
#define UTF8_TO_TCHAR(str) (TCHAR*)FUTF8ToTCHAR((const ANSICHAR*)str).Get()
#define TCHAR_TO_ANSI(str) (ANSICHAR*)FTCHARToANSI((const TCHAR*)str).Get()
#define ANSI_TO_TCHAR(str) (TCHAR*)FANSIToTCHAR((const ANSICHAR*)str).Get()
#define TCHAR_TO_WCHAR(str) str
#define WCHAR_TO_TCHAR(str) str
