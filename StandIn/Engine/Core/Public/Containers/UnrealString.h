// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringConv.h"
#include "Misc/CString.h"
#include "Misc/VarArgs.h"

// FString: an array of TCHAR with its terminator. Comparison by operators and the hash ignore the case of ASCII letters; searching does
// so by default. Formats are the stand-in's own (FString::Printf); %s takes const TCHAR*.

/** A string of TCHAR. */
class CORE_API FString
{
public:
	typedef TCHAR ElementType;

	FString() = default;
	FString(FString&&) = default;
	FString(const FString&) = default;
	FString& operator=(FString&&) = default;
	FString& operator=(const FString&) = default;
	~FString() = default;

	/** Copies a terminated string; null gives an empty one. */
	FString(const TCHAR* Src);

	/** Widens a terminated ANSI string; null gives an empty one. */
	FString(const ANSICHAR* Src);

	/** Copies the first InCount characters. */
	explicit FString(int32 InCount, const TCHAR* InSrc);

	/** Copies a terminated string and makes room for more. */
	FString(const TCHAR* Src, int32 ExtraSlack);

	FString& operator=(const TCHAR* Other);

	/** The character at an index, checked. */
	TCHAR& operator[](int32 Index);

	/** The character at an index, checked. */
	const TCHAR& operator[](int32 Index) const;

	/** The terminated characters, never null. */
	const TCHAR* operator*() const { return Data.Num() != 0 ? Data.GetData() : TEXT(""); }

	/** The array below, with the terminator if it is not empty. */
	TArray<TCHAR>& GetCharArray() { return Data; }

	/** The array below, with the terminator if it is not empty. */
	const TArray<TCHAR>& GetCharArray() const { return Data; }

	/** Number of characters without the terminator. */
	int32 Len() const { return Data.Num() != 0 ? Data.Num() - 1 : 0; }

	/** Whether there are no characters. */
	bool IsEmpty() const { return Data.Num() <= 1; }

	/** Whether there is a character at the index. */
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }

	/** Removes the characters and the memory. */
	void Empty(int32 Slack = 0) { Data.Empty(Slack); }

	/** Removes the characters and keeps the memory. */
	void Reset(int32 NewReservedSize = 0) { Data.Reset(NewReservedSize != 0 ? NewReservedSize + 1 : 0); }

	/** Makes room for CharacterCount characters. */
	void Reserve(int32 CharacterCount) { Data.Reserve(CharacterCount + 1); }

	/** Gives back memory that is not used. */
	void Shrink() { Data.Shrink(); }

	/** Whether every character is ASCII. */
	bool IsPureAnsi() const;

	/** Appends Count characters. */
	void AppendChars(const TCHAR* Array, int32 Count);

	/** Appends a terminated string. */
	FString& Append(const TCHAR* Text);

	/** Appends the first Count characters of a string. */
	FString& Append(const TCHAR* Text, int32 Count);

	/** Appends a string. */
	FString& Append(const FString& Text);

	/** Appends a character. */
	FString& AppendChar(const TCHAR InChar);

	/** Appends a number in decimal. */
	void AppendInt(int32 InNum);

	/** Appends a string. */
	FString& operator+=(const FString& Str) { return Append(Str); }

	/** Appends a terminated string. */
	FString& operator+=(const TCHAR* Str) { return Append(Str); }

	/** Appends a character. */
	FString& operator+=(const TCHAR InChar) { return AppendChar(InChar); }

	/** Appends a path with exactly one '/' between. */
	FString& operator/=(const TCHAR* Str);

	/** Appends a path with exactly one '/' between. */
	FString& operator/=(const FString& Str) { return *this /= *Str; }

	/** Appends Str as a path; StrLength characters of it. */
	void PathAppend(const TCHAR* Str, int32 StrLength);

	/** Removes Count characters at an index. */
	void RemoveAt(int32 Index, int32 Count = 1, bool bAllowShrinking = true);

	/** Inserts a string at an index. */
	void InsertAt(int32 Index, const FString& Characters);

	/** Inserts a character at an index. */
	void InsertAt(int32 Index, TCHAR Character);

	/** Removes a prefix; yields whether it was there. */
	bool RemoveFromStart(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** Removes a suffix; yields whether it was there. */
	bool RemoveFromEnd(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** The first Count characters. */
	FString Left(int32 Count) const;

	/** All but the last Count characters. */
	FString LeftChop(int32 Count) const;

	/** The last Count characters. */
	FString Right(int32 Count) const;

	/** The characters from Count on. */
	FString RightChop(int32 Count) const;

	/** Count characters from Start on. */
	FString Mid(int32 Start, int32 Count = MAX_int32) const;

	/** Cuts the string to its first Count characters. */
	void LeftInline(int32 Count, bool bAllowShrinking = true);

	/** Cuts the last Count characters off. */
	void LeftChopInline(int32 Count, bool bAllowShrinking = true);

	/** Cuts the string to its last Count characters. */
	void RightInline(int32 Count, bool bAllowShrinking = true);

	/** Cuts the first Count characters off. */
	void RightChopInline(int32 Count, bool bAllowShrinking = true);

	/** Cuts the string to Count characters from Start on. */
	void MidInline(int32 Start, int32 Count = MAX_int32, bool bAllowShrinking = true);

	/** Index of a text, or INDEX_NONE. */
	int32 Find(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;

	/** Index of a text, or INDEX_NONE. */
	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(*SubStr, SearchCase, SearchDir, StartPosition);
	}

	/** Whether a text occurs. */
	bool Contains(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}

	/** Whether a text occurs. */
	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(*SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}

	/** Finds a character's first place. */
	bool FindChar(TCHAR InChar, int32& OutIndex) const { return Find_(InChar, OutIndex, false); }

	/** Finds a character's last place. */
	bool FindLastChar(TCHAR InChar, int32& OutIndex) const { return Find_(InChar, OutIndex, true); }

	/** Whether both are equal; by default with regard to case. */
	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	/** Compares; negative, zero or positive; by default with regard to case. */
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	/** Whether the string begins with a text; an empty text is no beginning. */
	bool StartsWith(const TCHAR* InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	/** Whether the string begins with a text; an empty text is no beginning. */
	bool StartsWith(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return StartsWith(*InPrefix, SearchCase);
	}

	/** Whether the string ends with a text; an empty text is no end. */
	bool EndsWith(const TCHAR* InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	/** Whether the string ends with a text; an empty text is no end. */
	bool EndsWith(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return EndsWith(*InSuffix, SearchCase);
	}

	/** Whether the string fits a pattern with * and ?. */
	bool MatchesWildcard(const FString& Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	/** Splits at a text; yields whether it was found; outputs may be null. */
	bool Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;

	/** A copy with every From replaced by To. */
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	/** Replaces every From by To; yields how many. */
	int32 ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** Replaces every character by another. */
	FString& ReplaceCharInline(const TCHAR SearchChar, const TCHAR ReplacementChar, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** A copy with line breaks, tabs, quotes and backslashes written as escapes. */
	FString ReplaceCharWithEscapedChar() const;

	/** A copy with those escapes as characters. */
	FString ReplaceEscapedCharWithChar() const;

	/** A copy with a backslash before each quotation mark that has none. */
	FString ReplaceQuotesWithEscapedQuotes() const;

	/** A copy in upper case. */
	FString ToUpper() const;

	/** A copy in lower case. */
	FString ToLower() const;

	/** Changes to upper case. */
	void ToUpperInline();

	/** Changes to lower case. */
	void ToLowerInline();

	/** A copy without white space at the start. */
	FString TrimStart() const;

	/** A copy without white space at the end. */
	FString TrimEnd() const;

	/** A copy without white space at both ends. */
	FString TrimStartAndEnd() const;

	/** Removes white space at the start. */
	void TrimStartInline();

	/** Removes white space at the end. */
	void TrimEndInline();

	/** Removes white space at both ends. */
	void TrimStartAndEndInline();

	/** A copy without a quotation mark at each end. */
	FString TrimQuotes(bool* bQuotesRemoved = nullptr) const;

	/** A copy padded with blanks at the start to ChCount characters. */
	FString LeftPad(int32 ChCount) const;

	/** A copy padded with blanks at the end to ChCount characters. */
	FString RightPad(int32 ChCount) const;

	/** A copy in reverse order. */
	FString Reverse() const;

	/** Whether the string is one number. */
	bool IsNumeric() const;

	/** Whether the string says true: True, Yes, On, or a number other than nought. */
	bool ToBool() const;

	/** Splits at a delimiter; by default without empty parts; yields the number of parts. */
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty = true) const;

	/** Splits at any of several delimiters; yields the number of parts. */
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* DelimArray, int32 NumDelims, bool InCullEmpty = true) const;

	/** Splits into lines; yields their number. */
	int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty = true) const;

	/** Splits at white space; yields the number of parts. */
	int32 ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* pchExtraDelim = nullptr, bool InCullEmpty = true) const;

	/** Formats like printf; the format must be a literal, arguments numbers, enumerators or pointers. */
	template <SIZE_T FormatSize, typename... Types>
	static FString Printf(const TCHAR (&Fmt)[FormatSize], Types... Args)
	{
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to FString::Printf");
		return PrintfImpl(Fmt, Args...);
	}

	/** Appends formatted text. */
	template <SIZE_T FormatSize, typename... Types>
	FString& Appendf(const TCHAR (&Fmt)[FormatSize], Types... Args)
	{
		static_assert(TAreValidVariadicFunctionArgs<Types...>::Value, "Invalid argument(s) passed to FString::Appendf");
		return Append(PrintfImpl(Fmt, Args...));
	}

	/** A string of one character. */
	static FString Chr(TCHAR Ch);

	/** A string of NumCharacters equal characters. */
	static FString ChrN(int32 NumCharacters, TCHAR Char);

	/** A number in decimal. */
	static FString FromInt(int32 Num);

	/** A number without trailing zeros, but with MinFractionalDigits of them at least. */
	static FString SanitizeFloat(double InFloat, const int32 InMinFractionalDigits = 1);

	/** Joins the strings of a range with a separator. */
	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += Element;
		}
		return Result;
	}

	/** Start of a loop over the characters. */
	TCHAR* begin() { return Data.GetData(); }
	/** Start of a loop over the characters. */
	const TCHAR* begin() const { return Data.GetData(); }
	/** End of a loop over the characters. */
	TCHAR* end() { return Data.GetData() + Len(); }
	/** End of a loop over the characters. */
	const TCHAR* end() const { return Data.GetData() + Len(); }

private:
	static FString VARARGS PrintfImpl(const TCHAR* Fmt, ...);
	bool Find_(TCHAR InChar, int32& OutIndex, bool bFromEnd) const;

	TArray<TCHAR> Data;
};

#include "Containers/StringOperators.h"
