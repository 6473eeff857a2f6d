// Copyright The Tintmill authors. All rights reserved.

#include "UObject/NameTypes.h"

#include "StandIn/FatalHandler.h"
#include "UObject/NameTable.h"

using FNameTable = StandInPrivate::FNameTable;

namespace
{
const TCHAR* OrEmpty(const TCHAR* Text)
{
	return Text != nullptr ? Text : TEXT("");
}

/** Cuts "_<number>" off the text's end and yields the number in its internal form; 0 if there is none. */
int32 SplitNumber(FNameTable::FView& InOutText)
{
	std::size_t FirstDigit = InOutText.size();
	while (FirstDigit > 0 && FChar::IsDigit(InOutText[FirstDigit - 1]))
	{
		--FirstDigit;
	}
	const std::size_t NumDigits = InOutText.size() - FirstDigit;
	if (NumDigits == 0 || NumDigits > 10 || FirstDigit == 0 || InOutText[FirstDigit - 1] != '_')
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	if (NumDigits > 1 && InOutText[FirstDigit] == '0')
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	int64 Number = 0;
	for (const TCHAR Digit : InOutText.substr(FirstDigit))
	{
		Number = Number * 10 + FChar::ConvertCharDigitToInt(Digit);
	}
	if (Number >= MAX_int32)
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	InOutText = InOutText.substr(0, FirstDigit - 1);
	return NAME_EXTERNAL_TO_INTERNAL((int32)Number);
}

FName MakeName(FNameTable::FView Text, int32 Number, EFindName FindType)
{
	// A number without a text is no name.
	if (Text.empty())
	{
		return FName();
	}
	const int32 Len = (int32)Text.size();
	checkf(Len < NAME_SIZE, TEXT("FName's %d max length exceeded. Got %d characters excluding null-terminator."), NAME_SIZE - 1, Len);
	FNameTable& Table = FNameTable::Get();
	uint32 DisplayIndex = 0;
	switch (FindType)
	{
	case FNAME_Find:
	{
		const int64 Found = Table.Find(Text);
		if (Found < 0)
		{
			return FName();
		}
		DisplayIndex = (uint32)Found;
		break;
	}
	case FNAME_Add:
		DisplayIndex = Table.Store(Text);
		break;
	default:
		STANDIN_MISSING(TEXT("FNAME_Replace_Not_Safe_For_Threading"));
	}
	// A name is its two places and its number; put together through the bytes' layout that the header promises.
	struct FParts
	{
		uint32 ComparisonIndex;
		int32 Number;
		uint32 DisplayIndex;
	};
	const FParts Parts = {Table.GetComparisonIndex(DisplayIndex), Number, DisplayIndex};
	FName Result;
	static_assert(sizeof(FParts) == sizeof(FName), "The fields must cover the name.");
	FMemory::Memcpy(&Result, &Parts, sizeof(FName));
	return Result;
}

FName MakeNameDetectNumber(FNameTable::FView Text, EFindName FindType)
{
	FNameTable::FView Plain = Text;
	const int32 Number = SplitNumber(Plain);
	return MakeName(Plain, Number, FindType);
}
}

FName::FName(const WIDECHAR* Name, EFindName FindType)
	: FName(MakeNameDetectNumber(OrEmpty(Name), FindType))
{}

FName::FName(const ANSICHAR* Name, EFindName FindType)
	: FName(FANSIToTCHAR(Name).Get(), FindType)
{}

FName::FName(int32 Len, const WIDECHAR* Name, EFindName FindType)
	: FName(MakeNameDetectNumber(FNameTable::FView(Name, (std::size_t)Len), FindType))
{}

FName::FName(int32 Len, const ANSICHAR* Name, EFindName FindType)
	: FName(Len, FANSIToTCHAR(Name, Len).Get(), FindType)
{}

FName::FName(const WIDECHAR* Name, int32 InNumber, EFindName FindType)
	: FName(MakeName(OrEmpty(Name), InNumber, FindType))
{}

FName::FName(const ANSICHAR* Name, int32 InNumber, EFindName FindType)
	: FName(FANSIToTCHAR(Name).Get(), InNumber, FindType)
{}

FString FName::SafeString(FNameEntryId InDisplayIndex, int32 InstanceNumber)
{
	const FNameTable::FKey& Text = FNameTable::Get().GetText(InDisplayIndex.ToUnstableInt());
	FString Result((int32)Text.size(), Text.data());
	if (InstanceNumber != NAME_NO_NUMBER_INTERNAL)
	{
		Result += FString::Printf(TEXT("_%d"), NAME_INTERNAL_TO_EXTERNAL(InstanceNumber));
	}
	return Result;
}

FString FName::GetPlainNameString() const
{
	return SafeString(DisplayIndex);
}

FString FName::ToString() const
{
	return SafeString(DisplayIndex, (int32)Number);
}

void FName::ToString(FString& Out) const
{
	Out = ToString();
}

void FName::AppendString(FString& Out) const
{
	Out += ToString();
}

bool FName::IsValid() const
{
	const uint32 NumNames = FNameTable::Get().Num();
	return ComparisonIndex.ToUnstableInt() < NumNames && DisplayIndex.ToUnstableInt() < NumNames;
}

bool FName::IsEqual(const FName& Other, const ENameCase CompareMethod, const bool bCompareNumber) const
{
	const bool bSameText =
		CompareMethod == ENameCase::IgnoreCase ? ComparisonIndex == Other.ComparisonIndex : DisplayIndex == Other.DisplayIndex;
	return bSameText && (!bCompareNumber || Number == Other.Number);
}

int32 FName::Compare(const FName& Other) const
{
	if (ComparisonIndex == Other.ComparisonIndex)
	{
		return (int32)Number - (int32)Other.Number;
	}
	const FNameTable& Table = FNameTable::Get();
	return FCString::Stricmp(
		Table.GetText(ComparisonIndex.ToUnstableInt()).c_str(), Table.GetText(Other.ComparisonIndex.ToUnstableInt()).c_str());
}
