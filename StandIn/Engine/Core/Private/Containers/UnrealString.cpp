// Copyright The Tintmill authors. All rights reserved.

#include "Containers/UnrealString.h"

#include "Math/UnrealMathUtility.h"

FString::FString(const TCHAR* Src)
{
	if (Src != nullptr && *Src != 0)
	{
		AppendChars(Src, FCString::Strlen(Src));
	}
}

FString::FString(const ANSICHAR* Src)
{
	const FANSIToTCHAR Wide(Src);
	AppendChars(Wide.Get(), Wide.Length());
}

FString::FString(int32 InCount, const TCHAR* InSrc)
{
	AppendChars(InSrc, InCount);
}

FString::FString(const TCHAR* Src, int32 ExtraSlack)
{
	const int32 Length = Src != nullptr ? FCString::Strlen(Src) : 0;
	Reserve(Length + ExtraSlack);
	AppendChars(Src, Length);
}

FString& FString::operator=(const TCHAR* Other)
{
	if (*(*this) != Other)
	{
		*this = FString(Other);
	}
	return *this;
}

TCHAR& FString::operator[](int32 Index)
{
	checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
	return Data.GetData()[Index];
}

const TCHAR& FString::operator[](int32 Index) const
{
	checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
	return Data.GetData()[Index];
}

bool FString::IsPureAnsi() const
{
	return FCString::IsPureAnsi(**this);
}

void FString::AppendChars(const TCHAR* Array, int32 Count)
{
	check(Count >= 0);
	if (Count == 0)
	{
		return;
	}
	checkSlow(Array != nullptr);
	const TCHAR* const OldData = Data.GetData();
	const bool bInside = Data.Num() != 0 && Array >= OldData && Array < OldData + Data.Num();
	const std::ptrdiff_t Offset = bInside ? Array - OldData : 0;
	const int32 OldLength = Len();
	Data.AddUninitialized(Count + (Data.Num() == 0 ? 1 : 0));
	TCHAR* const NewData = Data.GetData();
	FMemory::Memmove(NewData + OldLength, bInside ? NewData + Offset : Array, sizeof(TCHAR) * (SIZE_T)Count);
	NewData[OldLength + Count] = 0;
}

FString& FString::Append(const TCHAR* Text)
{
	if (Text != nullptr)
	{
		AppendChars(Text, FCString::Strlen(Text));
	}
	return *this;
}

FString& FString::Append(const TCHAR* Text, int32 Count)
{
	AppendChars(Text, Count);
	return *this;
}

FString& FString::Append(const FString& Text)
{
	AppendChars(*Text, Text.Len());
	return *this;
}

FString& FString::AppendChar(const TCHAR InChar)
{
	if (InChar != 0)
	{
		AppendChars(&InChar, 1);
	}
	return *this;
}

void FString::AppendInt(int32 InNum)
{
	*this += FromInt(InNum);
}

FString& FString::operator/=(const TCHAR* Str)
{
	PathAppend(Str, FCString::Strlen(Str));
	return *this;
}

void FString::PathAppend(const TCHAR* Str, int32 StrLength)
{
	const bool bHasSeparator = !IsEmpty() && (Data[Len() - 1] == '/' || Data[Len() - 1] == '\\');
	const bool bStartsWithSeparator = StrLength > 0 && *Str == '/';
	if (!IsEmpty() && !bHasSeparator && !bStartsWithSeparator)
	{
		AppendChar('/');
	}
	const int32 Skip = bHasSeparator && bStartsWithSeparator ? 1 : 0;
	AppendChars(Str + Skip, StrLength - Skip);
}

void FString::RemoveAt(int32 Index, int32 Count, bool bAllowShrinking)
{
	const int32 First = FMath::Clamp(Index, 0, Len());
	const int32 NumRemoved = FMath::Clamp(Count, 0, Len() - First);
	if (NumRemoved != 0)
	{
		Data.RemoveAt(First, NumRemoved, bAllowShrinking);
	}
}

void FString::InsertAt(int32 Index, const FString& Characters)
{
	if (!Characters.IsEmpty())
	{
		*this = Left(Index) + Characters + RightChop(Index);
	}
}

void FString::InsertAt(int32 Index, TCHAR Character)
{
	InsertAt(Index, Chr(Character));
}

bool FString::RemoveFromStart(const FString& InPrefix, ESearchCase::Type SearchCase)
{
	if (!StartsWith(*InPrefix, SearchCase))
	{
		return false;
	}
	RemoveAt(0, InPrefix.Len());
	return true;
}

bool FString::RemoveFromEnd(const FString& InSuffix, ESearchCase::Type SearchCase)
{
	if (!EndsWith(*InSuffix, SearchCase))
	{
		return false;
	}
	RemoveAt(Len() - InSuffix.Len(), InSuffix.Len());
	return true;
}

FString FString::Left(int32 Count) const
{
	return FString(FMath::Clamp(Count, 0, Len()), **this);
}

FString FString::LeftChop(int32 Count) const
{
	return FString((int32)FMath::Clamp<int64>((int64)Len() - Count, 0, Len()), **this);
}

FString FString::Right(int32 Count) const
{
	const int32 Start = (int32)FMath::Clamp<int64>((int64)Len() - Count, 0, Len());
	return FString(Len() - Start, **this + Start);
}

FString FString::RightChop(int32 Count) const
{
	const int32 Start = FMath::Clamp(Count, 0, Len());
	return FString(Len() - Start, **this + Start);
}

FString FString::Mid(int32 Start, int32 Count) const
{
	const int64 End = FMath::Clamp<int64>((int64)Start + FMath::Max(Count, 0), 0, Len());
	const int32 First = FMath::Clamp(Start, 0, (int32)End);
	return FString((int32)End - First, **this + First);
}

void FString::LeftInline(int32 Count, bool)
{
	*this = Left(Count);
}

void FString::LeftChopInline(int32 Count, bool)
{
	*this = LeftChop(Count);
}

void FString::RightInline(int32 Count, bool)
{
	*this = Right(Count);
}

void FString::RightChopInline(int32 Count, bool)
{
	*this = RightChop(Count);
}

void FString::MidInline(int32 Start, int32 Count, bool)
{
	*this = Mid(Start, Count);
}

FString FString::ToUpper() const
{
	FString Result(*this);
	Result.ToUpperInline();
	return Result;
}

FString FString::ToLower() const
{
	FString Result(*this);
	Result.ToLowerInline();
	return Result;
}

void FString::ToUpperInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToUpper(Char);
	}
}

void FString::ToLowerInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToLower(Char);
	}
}

FString FString::TrimStart() const
{
	FString Result(*this);
	Result.TrimStartInline();
	return Result;
}

FString FString::TrimEnd() const
{
	FString Result(*this);
	Result.TrimEndInline();
	return Result;
}

FString FString::TrimStartAndEnd() const
{
	FString Result(*this);
	Result.TrimStartAndEndInline();
	return Result;
}

void FString::TrimStartInline()
{
	int32 NumBlanks = 0;
	while (NumBlanks < Len() && FChar::IsWhitespace(Data[NumBlanks]))
	{
		++NumBlanks;
	}
	RemoveAt(0, NumBlanks);
}

void FString::TrimEndInline()
{
	int32 End = Len();
	while (End > 0 && FChar::IsWhitespace(Data[End - 1]))
	{
		--End;
	}
	RemoveAt(End, Len() - End);
}

void FString::TrimStartAndEndInline()
{
	TrimEndInline();
	TrimStartInline();
}

FString FString::TrimQuotes(bool* bQuotesRemoved) const
{
	FString Result(*this);
	bool bRemoved = Result.RemoveFromStart(TEXT("\""));
	bRemoved = Result.RemoveFromEnd(TEXT("\"")) || bRemoved;
	if (bQuotesRemoved != nullptr)
	{
		*bQuotesRemoved = bRemoved;
	}
	return Result;
}

FString FString::LeftPad(int32 ChCount) const
{
	return ChrN(FMath::Max(ChCount - Len(), 0), ' ') + *this;
}

FString FString::RightPad(int32 ChCount) const
{
	return *this + ChrN(FMath::Max(ChCount - Len(), 0), ' ');
}

FString FString::Reverse() const
{
	FString Result(*this);
	StandIn::ReverseRange(Result.Data.GetData(), Result.Len());
	return Result;
}

FString FString::Chr(TCHAR Ch)
{
	return FString(Ch != 0 ? 1 : 0, &Ch);
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	check(NumCharacters >= 0);
	FString Result;
	Result.Reserve(NumCharacters);
	for (int32 Index = 0; Index < NumCharacters; ++Index)
	{
		Result.AppendChar(Char);
	}
	return Result;
}

FString FString::FromInt(int32 Num)
{
	return Printf(TEXT("%d"), Num);
}

FString FString::SanitizeFloat(double InFloat, const int32 InMinFractionalDigits)
{
	FString Result = Printf(TEXT("%f"), InFloat);
	int32 Dot = INDEX_NONE;
	if (!Result.FindChar('.', Dot))
	{
		return Result;
	}
	const int32 MinLength = InMinFractionalDigits > 0 ? Dot + 1 + InMinFractionalDigits : Dot;
	while (Result.Len() > MinLength && (Result.EndsWith(TEXT("0")) || Result.EndsWith(TEXT("."))))
	{
		const bool bDot = Result.EndsWith(TEXT("."));
		Result.RemoveAt(Result.Len() - 1);
		if (bDot)
		{
			break;
		}
	}
	while (Result.Len() < MinLength)
	{
		Result.AppendChar('0');
	}
	return Result;
}

FString VARARGS FString::PrintfImpl(const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	FString Result = StandIn::FormatVString(Fmt, Args);
	va_end(Args);
	return Result;
}

uint32 GetTypeHash(const FString& S)
{
	uint32 Hash = 2166136261u;
	for (const TCHAR Char : S)
	{
		Hash = (Hash ^ (uint32)FChar::ToLower(Char)) * 16777619u;
	}
	return Hash;
}
