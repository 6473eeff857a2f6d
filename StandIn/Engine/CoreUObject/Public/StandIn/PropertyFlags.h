// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

// Property flags with the engine's names and values; reach them through UObject/ObjectMacros.h.

/** What a property is. */
enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x1ull,
	CPF_ConstParm = 0x2ull,
	CPF_BlueprintVisible = 0x4ull,
	CPF_ExportObject = 0x8ull,
	CPF_BlueprintReadOnly = 0x10ull,
	CPF_Net = 0x20ull,
	CPF_EditFixedSize = 0x40ull,
	CPF_Parm = 0x80ull,
	CPF_OutParm = 0x100ull,
	CPF_ZeroConstructor = 0x200ull,
	CPF_ReturnParm = 0x400ull,
	CPF_DisableEditOnTemplate = 0x800ull,
	CPF_Transient = 0x2000ull,
	CPF_Config = 0x4000ull,
	CPF_DisableEditOnInstance = 0x10000ull,
	CPF_EditConst = 0x20000ull,
	CPF_GlobalConfig = 0x40000ull,
	CPF_InstancedReference = 0x80000ull,
	CPF_DuplicateTransient = 0x200000ull,
	CPF_SaveGame = 0x1000000ull,
	CPF_NoClear = 0x2000000ull,
	CPF_ReferenceParm = 0x8000000ull,
	CPF_BlueprintAssignable = 0x10000000ull,
	CPF_Deprecated = 0x20000000ull,
	CPF_IsPlainOldData = 0x40000000ull,
	CPF_RepSkip = 0x80000000ull,
	CPF_RepNotify = 0x100000000ull,
	CPF_Interp = 0x200000000ull,
	CPF_NonTransactional = 0x400000000ull,
	CPF_EditorOnly = 0x800000000ull,
	CPF_NoDestructor = 0x1000000000ull,
	CPF_AutoWeak = 0x4000000000ull,
	CPF_ContainsInstancedReference = 0x8000000000ull,
	CPF_AssetRegistrySearchable = 0x10000000000ull,
	CPF_SimpleDisplay = 0x20000000000ull,
	CPF_AdvancedDisplay = 0x40000000000ull,
	CPF_Protected = 0x80000000000ull,
	CPF_BlueprintCallable = 0x100000000000ull,
	CPF_BlueprintAuthorityOnly = 0x200000000000ull,
	CPF_TextExportTransient = 0x400000000000ull,
	CPF_NonPIEDuplicateTransient = 0x800000000000ull,
	CPF_ExposeOnSpawn = 0x1000000000000ull,
	CPF_PersistentInstance = 0x2000000000000ull,
	CPF_UObjectWrapper = 0x4000000000000ull,
	CPF_HasGetValueTypeHash = 0x8000000000000ull,
	CPF_NativeAccessSpecifierPublic = 0x10000000000000ull,
	CPF_NativeAccessSpecifierProtected = 0x20000000000000ull,
	CPF_NativeAccessSpecifierPrivate = 0x40000000000000ull,
	CPF_SkipSerialization = 0x80000000000000ull,
};

/** Flags that are worked out when a type is linked, absent from generated code. */
#define CPF_ComputedFlags (CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash)
#define CPF_NativeAccessSpecifiers (CPF_NativeAccessSpecifierPublic | CPF_NativeAccessSpecifierProtected | CPF_NativeAccessSpecifierPrivate)
#define CPF_AllFlags ((EPropertyFlags)0xFFFFFFFFFFFFFFFFull)

inline constexpr EPropertyFlags operator|(EPropertyFlags A, EPropertyFlags B)
{
	return EPropertyFlags(uint64(A) | uint64(B));
}
inline constexpr EPropertyFlags operator&(EPropertyFlags A, EPropertyFlags B)
{
	return EPropertyFlags(uint64(A) & uint64(B));
}
inline constexpr EPropertyFlags operator~(EPropertyFlags A)
{
	return EPropertyFlags(~uint64(A));
}
inline void operator|=(EPropertyFlags& A, EPropertyFlags B)
{
	A = A | B;
}
inline void operator&=(EPropertyFlags& A, EPropertyFlags B)
{
	A = A & B;
}
