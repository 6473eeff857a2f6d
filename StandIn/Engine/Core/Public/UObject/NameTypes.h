// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/UnrealNames.h"

// FName: an index into one table of the process, a number, and the spelling it was made with. Comparison ignores the case of ASCII
// letters. The table is safe for several threads and never shrinks.

#define NAME_NO_NUMBER_INTERNAL 0
#define NAME_INTERNAL_TO_EXTERNAL(x) (x - 1)
#define NAME_EXTERNAL_TO_INTERNAL(x) (x + 1)
#define NAME_NO_NUMBER NAME_INTERNAL_TO_EXTERNAL(NAME_NO_NUMBER_INTERNAL)

enum
{
	NAME_SIZE = 1024
};

/** What to do with a name that is not in the table. */
enum EFindName
{
	FNAME_Find,
	FNAME_Add,
	FNAME_Replace_Not_Safe_For_Threading
};

/** Case sensitivity of a comparison of names. */
enum class ENameCase : uint8
{
	CaseSensitive,
	IgnoreCase
};

/** Place of a text in the table of names; 0 is None. */
struct FNameEntryId
{
	FNameEntryId()
		: Value(0)
	{}

	FNameEntryId(ENoInit) {}

	/** Whether this is None. */
	bool IsNone() const { return Value == 0; }

	/** Whether this is not None. */
	explicit operator bool() const { return Value != 0; }

	/** The place as a number, which differs from run to run. */
	uint32 ToUnstableInt() const { return Value; }

	/** A place from a number. */
	static FNameEntryId FromUnstableInt(uint32 UnstableInt)
	{
		FNameEntryId Id;
		Id.Value = UnstableInt;
		return Id;
	}

	/** Whether both are the same place. */
	friend bool operator==(FNameEntryId A, FNameEntryId B) { return A.Value == B.Value; }
	/** Whether both are different places. */
	friend bool operator!=(FNameEntryId A, FNameEntryId B) { return A.Value != B.Value; }
	/** Hash of a place. */
	friend uint32 GetTypeHash(FNameEntryId Id) { return Id.Value * 2654435761u; }

private:
	uint32 Value;
};

/** A name: case-insensitive text with an optional number at its end. */
class CORE_API FName
{
public:
	/** The name None. */
	FName()
		: Number(NAME_NO_NUMBER_INTERNAL)
	{}

	FName(ENoInit)
		: ComparisonIndex(NoInit)
		, DisplayIndex(NoInit)
	{}

	/** A name known at compile time. */
	FName(EName Hardcoded)
		: FName(Hardcoded, NAME_NO_NUMBER_INTERNAL)
	{}

	/** A name known at compile time with a number (internal form). */
	FName(EName Hardcoded, int32 InNumber)
		: ComparisonIndex(FNameEntryId::FromUnstableInt((uint32)Hardcoded))
		, Number((uint32)InNumber)
		, DisplayIndex(ComparisonIndex)
	{}

	/** Another name's text with a number (internal form). */
	FName(const FName& Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex)
		, Number((uint32)InNumber)
		, DisplayIndex(Other.DisplayIndex)
	{}

	/** Makes or finds the name of a text; null and "" give None; more than NAME_SIZE characters are fatal. */
	FName(const WIDECHAR* Name, EFindName FindType = FNAME_Add);

	/** Makes or finds the name of a text; null and "" give None; more than NAME_SIZE characters are fatal. */
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);

	/** Makes or finds the name of the first Len characters. */
	FName(int32 Len, const WIDECHAR* Name, EFindName FindType = FNAME_Add);

	/** Makes or finds the name of the first Len characters. */
	FName(int32 Len, const ANSICHAR* Name, EFindName FindType = FNAME_Add);

	/** Makes or finds the name of a text that is not split, with a number (internal form). */
	FName(const WIDECHAR* Name, int32 InNumber, EFindName FindType = FNAME_Add);

	/** Makes or finds the name of a text that is not split, with a number (internal form). */
	FName(const ANSICHAR* Name, int32 InNumber, EFindName FindType = FNAME_Add);

	/** Place by which names are compared. */
	FNameEntryId GetComparisonIndex() const { return ComparisonIndex; }

	/** Place of the spelling. */
	FNameEntryId GetDisplayIndex() const { return DisplayIndex; }

	/** The number in its internal form: 0 for none, else one more than shown. */
	int32 GetNumber() const { return (int32)Number; }

	/** Sets the number in its internal form. */
	void SetNumber(const int32 NewNumber) { Number = (uint32)NewNumber; }

	/** The text without the number. */
	FString GetPlainNameString() const;

	/** The text with the number. */
	FString ToString() const;

	/** The text with the number. */
	void ToString(FString& Out) const;

	/** The length of the text with the number. */
	uint32 GetStringLength() const { return (uint32)ToString().Len(); }

	/** Appends the text with the number. */
	void AppendString(FString& Out) const;

	/** Whether this is None. */
	bool IsNone() const { return ComparisonIndex.IsNone() && Number == NAME_NO_NUMBER_INTERNAL; }

	/** Whether the places are inside the table. */
	bool IsValid() const;

	/** Whether names are equal, with choice of case and number. */
	bool IsEqual(const FName& Other, const ENameCase CompareMethod = ENameCase::IgnoreCase, const bool bCompareNumber = true) const;

	/** Compares by text, then number; negative, zero or positive. */
	int32 Compare(const FName& Other) const;

	/** Whether this comes before another by text. */
	bool LexicalLess(const FName& Other) const { return Compare(Other) < 0; }

	/** Whether this comes before another in an order that differs from run to run. */
	bool FastLess(const FName& Other) const
	{
		return ComparisonIndex != Other.ComparisonIndex ? ComparisonIndex.ToUnstableInt() < Other.ComparisonIndex.ToUnstableInt()
														: Number < Other.Number;
	}

	/** Whether both have the same text, without regard to case, and number. */
	bool operator==(const FName& Other) const { return ComparisonIndex == Other.ComparisonIndex && Number == Other.Number; }

	/** The opposite of ==. */
	bool operator!=(const FName& Other) const { return !(*this == Other); }

	/** Whether this is a name known at compile time. */
	bool operator==(EName Hardcoded) const { return *this == FName(Hardcoded); }

	/** The opposite of ==. */
	bool operator!=(EName Hardcoded) const { return !(*this == Hardcoded); }

	/** Hash of the text, without regard to case, and number. */
	friend uint32 GetTypeHash(const FName& Name) { return GetTypeHash(Name.ComparisonIndex) + Name.Number; }

	/** The text at a place with a number (internal form). */
	static FString SafeString(FNameEntryId InDisplayIndex, int32 InstanceNumber = NAME_NO_NUMBER_INTERNAL);

private:
	FNameEntryId ComparisonIndex;
	uint32 Number;
	FNameEntryId DisplayIndex;
};
static_assert(sizeof(FName) == 12, "A name keeps its spelling: index, number, display index.");
static_assert(std::is_trivially_copyable<FName>::value, "A name can be copied as bytes.");

/** Orders names by text. */
struct FNameLexicalLess
{
	/** Whether A comes before B. */
	bool operator()(const FName& A, const FName& B) const { return A.LexicalLess(B); }
};

/** Orders names quickly, differently from run to run. */
struct FNameFastLess
{
	/** Whether A comes before B. */
	bool operator()(const FName& A, const FName& B) const { return A.FastLess(B); }
};

/** Text of a name. */
inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}

/** Reads a name. */
inline void LexFromString(FName& OutName, const TCHAR* Str)
{
	OutName = FName(Str);
}
