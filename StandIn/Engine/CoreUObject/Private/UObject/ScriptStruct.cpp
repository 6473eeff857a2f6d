// Copyright The Tintmill authors. All rights reserved.

#include "HAL/UnrealMemory.h"
#include "UObject/Class.h"
#include "UObject/NativeTypes.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UnrealType.h"

IMPLEMENT_CLASS(UScriptStruct, 0)

void UScriptStruct::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UScriptStruct(X);
}

UScriptStruct::UScriptStruct(EStaticConstructor, int32 InSize, int32 InAlignment, EObjectFlags InFlags)
	: UStruct(EC_StaticConstructor, InSize, InAlignment, InFlags)
	, StructFlags(STRUCT_NoFlags)
	, CppStructOps(nullptr)
{}

UScriptStruct::UScriptStruct(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
	, StructFlags(STRUCT_NoFlags)
	, CppStructOps(nullptr)
{}

UScriptStruct::~UScriptStruct()
{
	delete CppStructOps;
}

void UScriptStruct::DeferCppStructOps(FName Target, ICppStructOps* InCppStructOps)
{
	// Every struct gets its operations with its other parameters, so that none has to be looked up by name.
	(void)Target;
	delete InCppStructOps;
}

void UScriptStruct::CopyScriptStruct(void* Dest, void const* Src, int32 ArrayDim) const
{
	check(CppStructOps != nullptr);
	if (Dest != Src && !CppStructOps->Copy(Dest, Src, ArrayDim))
	{
		FMemory::Memcpy(Dest, Src, SIZE_T(GetStructureSize()) * SIZE_T(ArrayDim));
	}
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	check(A);
	if (B == nullptr)
	{
		void* Default = FMemory::Malloc(SIZE_T(GetStructureSize()), uint32(MinAlignment));
		InitializeStruct(Default);
		const bool bIsDefault = CompareScriptStruct(A, Default, PortFlags);
		DestroyStruct(Default);
		FMemory::Free(Default);
		return bIsDefault;
	}
	bool bResult = false;
	if (CppStructOps->HasIdentical() && CppStructOps->Identical(A, B, PortFlags, bResult))
	{
		return bResult;
	}
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			if (!It->Identical_InContainer(A, B, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	check(CppStructOps != nullptr);
	const int32 Stride = GetStructureSize();
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		uint8* Element = (uint8*)Dest + Stride * Index;
		FMemory::Memzero(Element, SIZE_T(Stride));
		CppStructOps->Construct(Element);
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	check(CppStructOps != nullptr);
	const int32 Stride = GetStructureSize();
	for (int32 Index = 0; Index < ArrayDim && CppStructOps->HasDestructor(); ++Index)
	{
		CppStructOps->Destruct((uint8*)Dest + Stride * Index);
	}
}

void UScriptStruct::ClearScriptStruct(void* Dest, int32 ArrayDim) const
{
	DestroyStruct(Dest, ArrayDim);
	InitializeStruct(Dest, ArrayDim);
}
