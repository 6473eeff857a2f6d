// Copyright The Tintmill authors. All rights reserved.

#include "Containers/UnrealString.h"

#include "Math/UnrealMathUtility.h"

int32 FString::Find(const TCHAR* SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	if (SubStr == nullptr)
	{
		return INDEX_NONE;
	}
	const TCHAR* const Text = **this;
	const int32 Length = FCString::Strlen(SubStr);
	const auto Matches = [&](int32 Index) {
		return (SearchCase == ESearchCase::IgnoreCase ? FCString::Strnicmp(Text + Index, SubStr, (SIZE_T)Length)
													  : FCString::Strncmp(Text + Index, SubStr, (SIZE_T)Length))
			== 0;
	};
	if (SearchDir == ESearchDir::FromStart)
	{
		for (int32 Index = StartPosition == INDEX_NONE ? 0 : FMath::Clamp(StartPosition, 0, Len()); Index + Length <= Len(); ++Index)
		{
			if (Matches(Index))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	const int32 End = StartPosition == INDEX_NONE || StartPosition >= Len() ? Len() : StartPosition;
	for (int32 Index = End - FMath::Max(1, Length); Index >= 0; --Index)
	{
		if (Matches(Index))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool FString::Find_(TCHAR InChar, int32& OutIndex, bool bFromEnd) const
{
	OutIndex = INDEX_NONE;
	for (int32 Index = 0; Index < Len() && (bFromEnd || OutIndex == INDEX_NONE); ++Index)
	{
		if (Data[Index] == InChar)
		{
			OutIndex = Index;
		}
	}
	return OutIndex != INDEX_NONE;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return Len() == Other.Len() && Compare(Other, SearchCase) == 0;
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return SearchCase == ESearchCase::CaseSensitive ? FCString::Strcmp(**this, *Other) : FCString::Stricmp(**this, *Other);
}

bool FString::StartsWith(const TCHAR* InPrefix, ESearchCase::Type SearchCase) const
{
	const int32 Length = FCString::Strlen(InPrefix);
	return Length > 0
		&& (SearchCase == ESearchCase::IgnoreCase ? FCString::Strnicmp(**this, InPrefix, (SIZE_T)Length)
												  : FCString::Strncmp(**this, InPrefix, (SIZE_T)Length))
		== 0;
}

bool FString::EndsWith(const TCHAR* InSuffix, ESearchCase::Type SearchCase) const
{
	const int32 Length = FCString::Strlen(InSuffix);
	if (Length == 0 || Length > Len())
	{
		return false;
	}
	const TCHAR* const End = **this + Len() - Length;
	return (SearchCase == ESearchCase::IgnoreCase ? FCString::Stricmp(End, InSuffix) : FCString::Strcmp(End, InSuffix)) == 0;
}

bool FString::MatchesWildcard(const FString& Wildcard, ESearchCase::Type SearchCase) const
{
	const TCHAR* Text = **this;
	const TCHAR* Pattern = *Wildcard;
	const TCHAR* StarPattern = nullptr;
	const TCHAR* StarText = nullptr;
	const auto Same = [SearchCase](TCHAR A, TCHAR B) {
		return SearchCase == ESearchCase::IgnoreCase ? FChar::ToLower(A) == FChar::ToLower(B) : A == B;
	};
	while (*Text != 0)
	{
		if (*Pattern == '*')
		{
			StarPattern = ++Pattern;
			StarText = Text;
		}
		else if (*Pattern != 0 && (*Pattern == '?' || Same(*Pattern, *Text)))
		{
			++Pattern;
			++Text;
		}
		else if (StarPattern != nullptr)
		{
			Pattern = StarPattern;
			Text = ++StarText;
		}
		else
		{
			return false;
		}
	}
	while (*Pattern == '*')
	{
		++Pattern;
	}
	return *Pattern == 0;
}

bool FString::Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	check(LeftS != RightS || LeftS == nullptr);
	const int32 Index = Find(*InS, SearchCase, SearchDir);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	const FString LeftPart = Left(Index);
	const FString RightPart = Mid(Index + InS.Len());
	if (LeftS != nullptr)
	{
		*LeftS = LeftPart;
	}
	if (RightS != nullptr)
	{
		*RightS = RightPart;
	}
	return true;
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result(*this);
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase)
{
	const int32 SearchLength = SearchText != nullptr ? FCString::Strlen(SearchText) : 0;
	if (SearchLength == 0 || IsEmpty())
	{
		return 0;
	}
	FString Result;
	int32 NumReplaced = 0;
	int32 Start = 0;
	for (int32 Index = Find(SearchText, SearchCase); Index != INDEX_NONE;
		 Index = Find(SearchText, SearchCase, ESearchDir::FromStart, Start))
	{
		Result.AppendChars(**this + Start, Index - Start);
		Result += ReplacementText;
		Start = Index + SearchLength;
		++NumReplaced;
	}
	Result.AppendChars(**this + Start, Len() - Start);
	*this = MoveTemp(Result);
	return NumReplaced;
}

FString& FString::ReplaceCharInline(const TCHAR SearchChar, const TCHAR ReplacementChar, ESearchCase::Type SearchCase)
{
	for (TCHAR& Char : *this)
	{
		const bool bSame = SearchCase == ESearchCase::IgnoreCase ? FChar::ToLower(Char) == FChar::ToLower(SearchChar) : Char == SearchChar;
		Char = bSame ? ReplacementChar : Char;
	}
	return *this;
}

namespace
{
const TCHAR EscapedCharacters[][2] = {{'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}, {'\'', '\''}, {'\\', '\\'}, {'"', '"'}};
}

FString FString::ReplaceCharWithEscapedChar() const
{
	FString Result;
	for (const TCHAR Char : *this)
	{
		TCHAR Written = Char;
		for (const TCHAR(&Escape)[2] : EscapedCharacters)
		{
			if (Escape[0] == Char)
			{
				Result.AppendChar('\\');
				Written = Escape[1];
			}
		}
		Result.AppendChar(Written);
	}
	return Result;
}

FString FString::ReplaceEscapedCharWithChar() const
{
	FString Result;
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		TCHAR Written = Data[Index];
		if (Written == '\\' && Index + 1 < Len())
		{
			for (const TCHAR(&Escape)[2] : EscapedCharacters)
			{
				if (Escape[1] == Data[Index + 1])
				{
					Written = Escape[0];
					++Index;
					break;
				}
			}
		}
		Result.AppendChar(Written);
	}
	return Result;
}

FString FString::ReplaceQuotesWithEscapedQuotes() const
{
	FString Result;
	bool bEscaped = false;
	for (const TCHAR Char : *this)
	{
		if (Char == '"' && !bEscaped)
		{
			Result.AppendChar('\\');
		}
		bEscaped = Char == '\\' && !bEscaped;
		Result.AppendChar(Char);
	}
	return Result;
}

bool FString::IsNumeric() const
{
	return !IsEmpty() && FCString::IsNumeric(**this);
}

bool FString::ToBool() const
{
	return FCString::ToBool(**this);
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty) const
{
	check(pchDelim != nullptr);
	return ParseIntoArray(OutArray, &pchDelim, 1, InCullEmpty);
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* DelimArray, int32 NumDelims, bool InCullEmpty) const
{
	check(DelimArray != nullptr);
	OutArray.Reset();
	const TCHAR* const Text = **this;
	int32 Start = 0;
	const auto AddPart = [&](int32 End) {
		if (!InCullEmpty || End != Start)
		{
			OutArray.Emplace(End - Start, Text + Start);
		}
	};
	for (int32 Index = 0; Index < Len();)
	{
		int32 Matched = 0;
		for (int32 Delim = 0; Delim < NumDelims && Matched == 0; ++Delim)
		{
			const int32 Length = FCString::Strlen(DelimArray[Delim]);
			if (Length != 0 && FCString::Strncmp(Text + Index, DelimArray[Delim], (SIZE_T)Length) == 0)
			{
				Matched = Length;
			}
		}
		if (Matched != 0)
		{
			AddPart(Index);
			Index += Matched;
			Start = Index;
		}
		else
		{
			++Index;
		}
	}
	AddPart(Len());
	return OutArray.Num();
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty) const
{
	static const TCHAR* const LineEnds[] = {TEXT("\r\n"), TEXT("\r"), TEXT("\n")};
	return ParseIntoArray(OutArray, LineEnds, 3, InCullEmpty);
}

int32 FString::ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* pchExtraDelim, bool InCullEmpty) const
{
	const TCHAR* Delims[] = {TEXT(" "), TEXT("\t"), TEXT("\r"), TEXT("\n"), TEXT(""), pchExtraDelim};
	return ParseIntoArray(OutArray, Delims, pchExtraDelim != nullptr && *pchExtraDelim != 0 ? 6 : 5, InCullEmpty);
}
