// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Class.h"
#include "UObject/NativeTypes.h"

IMPLEMENT_CLASS(UEnum, 0)

namespace StandInPrivate
{
namespace
{
// What stands behind "EFoo::".
FString GetShortEnumName(const FString& FullName)
{
	const int32 Position = FullName.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Position == INDEX_NONE ? FullName : FullName.RightChop(Position + 2);
}
}
}

void UEnum::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UEnum(X);
}

UEnum::UEnum(EStaticConstructor, EObjectFlags InFlags)
	: UField(EC_StaticConstructor, InFlags)
	, CppForm(ECppForm::Regular)
	, EnumFlags(EEnumFlags::None)
{}

UEnum::UEnum(const FObjectInitializer& ObjectInitializer)
	: UField(ObjectInitializer)
	, CppForm(ECppForm::Regular)
	, EnumFlags(EEnumFlags::None)
{}

bool UEnum::SetEnums(TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags, bool bAddMaxKeyIfMissing)
{
	Names = InNames;
	CppForm = InCppForm;
	EnumFlags = InFlags;
	if (bAddMaxKeyIfMissing && !ContainsExistingMax())
	{
		int64 Max = -1;
		for (const TPair<FName, int64>& Name : Names)
		{
			Max = Name.Value > Max ? Name.Value : Max;
		}
		const FString MaxName = GetName() + TEXT("_MAX");
		Names.Add(TPair<FName, int64>(FName(*GenerateFullEnumName(*MaxName)), Max + 1));
	}
	return true;
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName(NAME_None);
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	check(Names.IsValidIndex(Index));
	return Names[Index].Value;
}

int32 UEnum::GetIndexByName(FName InName) const
{
	const FString Wanted = InName.ToString();
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Key == InName || StandInPrivate::GetShortEnumName(Names[Index].Key.ToString()) == Wanted)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Value == InValue)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

int64 UEnum::GetValueByName(FName InName) const
{
	const int32 Index = GetIndexByName(InName);
	return Index == INDEX_NONE ? int64(INDEX_NONE) : Names[Index].Value;
}

bool UEnum::IsValidEnumName(FName InName) const
{
	return GetIndexByName(InName) != INDEX_NONE;
}

FString UEnum::GetNameStringByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? StandInPrivate::GetShortEnumName(Names[Index].Key.ToString()) : FString();
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetDisplayNameTextByIndex(int32 Index) const
{
	const FString DisplayName = GetMetaData(TEXT("DisplayName"), Index);
	return FText::FromString(DisplayName.Len() > 0 ? DisplayName : GetNameStringByIndex(Index));
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 Max = 0;
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		Max = Index == 0 || Names[Index].Value > Max ? Names[Index].Value : Max;
	}
	return Max;
}

bool UEnum::ContainsExistingMax() const
{
	return IsValidEnumName(FName(TEXT("MAX"))) || IsValidEnumName(FName(*(GetName() + TEXT("_MAX"))));
}

FString UEnum::GenerateFullEnumName(const TCHAR* InEnumName) const
{
	const FString Name(InEnumName);
	return CppForm == ECppForm::Regular || Name.Contains(TEXT("::")) ? Name : GetName() + TEXT("::") + Name;
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return UField::GetMetaData(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key));
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return UField::HasMetaData(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key));
}
