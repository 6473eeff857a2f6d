// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/StructTypes.h"
#include "Internationalization/Text.h"
#include "Templates/Tuple.h"

// Enumerations; reach them through UObject/Class.h. Names are matched without regard to case. Left out: renaming, redirects.

/** An enumeration. */
class COREUOBJECT_API UEnum : public UField
{
	DECLARE_CLASS(UEnum, UField, CLASS_Intrinsic, CASTCLASS_UEnum, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UEnum)
	static void StaticRegisterNativesUEnum() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	/** How the enumeration is declared in C++. */
	enum class ECppForm
	{
		Regular,
		Namespaced,
		EnumClass
	};

	explicit UEnum(EStaticConstructor, EObjectFlags InFlags);
	explicit UEnum(const FObjectInitializer& ObjectInitializer);

	/** Replaces the enumerators (full names, `EFoo::Bar` for an enum class); a `_MAX` one is added if asked for and absent. */
	bool SetEnums(
		TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags = EEnumFlags::None, bool bAddMaxKeyIfMissing = true);
	/** Number of enumerators with the `_MAX` one. */
	int32 NumEnums() const { return Names.Num(); }
	/** Full name at an index, or None. */
	FName GetNameByIndex(int32 Index) const;
	/** Value at an index; fatal for a bad one. */
	int64 GetValueByIndex(int32 Index) const;
	/** Index of a full or short name, or INDEX_NONE. */
	int32 GetIndexByName(FName InName) const;
	int32 GetIndexByValue(int64 InValue) const;
	int32 GetIndexByNameString(const FString& SearchString) const { return GetIndexByName(FName(*SearchString)); }
	/** Full name of a value, or None. */
	FName GetNameByValue(int64 InValue) const;
	/** Value of a full or short name, or INDEX_NONE. */
	int64 GetValueByName(FName InName) const;
	int64 GetValueByNameString(const FString& SearchString) const { return GetValueByName(FName(*SearchString)); }
	/** Name at an index without `EFoo::`, or "". */
	FString GetNameStringByIndex(int32 Index) const;
	/** Name of a value without `EFoo::`, or "". */
	FString GetNameStringByValue(int64 InValue) const;
	/** DisplayName metadata, else the name in words. */
	FText GetDisplayNameTextByIndex(int32 Index) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	bool IsValidEnumValue(int64 InValue) const { return GetIndexByValue(InValue) != INDEX_NONE; }
	bool IsValidEnumName(FName InName) const;
	/** Largest value, that of the `_MAX` enumerator included. */
	int64 GetMaxEnumValue() const;
	bool ContainsExistingMax() const;
	ECppForm GetCppForm() const { return CppForm; }
	/** `EFoo::Bar` for an enum class, else the name itself. */
	FString GenerateFullEnumName(const TCHAR* InEnumName) const;
	/** Metadata of an enumerator. */
	FString GetMetaData(const TCHAR* Key, int32 NameIndex) const;
	bool HasMetaData(const TCHAR* Key, int32 NameIndex) const;
	using UField::GetMetaData;
	using UField::HasMetaData;

	/** Name in C++. */
	FString CppType;

private:
	TArray<TPair<FName, int64>> Names;
	ECppForm CppForm;
	EEnumFlags EnumFlags;
};
