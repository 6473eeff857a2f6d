// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/Property.h"
#include "HAL/UnrealMemory.h"

IMPLEMENT_FIELD(FProperty)

FProperty::FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass, int32 InOffset,
	EPropertyFlags InFlags, int32 InElementSize)
	: FField(InOwner, InName, InObjectFlags, InClass)
	, ArrayDim(1)
	, ElementSize(InElementSize)
	, PropertyFlags(InFlags)
	, PropertyLinkNext(nullptr)
	, NextRef(nullptr)
	, Offset_Internal(InOffset)
{}

FText FProperty::GetDisplayNameText() const
{
	const FString* DisplayName = FindMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName != nullptr ? *DisplayName : GetName());
}

FText FProperty::GetToolTipText() const
{
	const FString* ToolTip = FindMetaData(TEXT("ToolTip"));
	return FText::FromString(ToolTip != nullptr ? *ToolTip : GetName());
}

bool FProperty::SameType(const FProperty* Other) const
{
	return Other != nullptr && GetClass() == Other->GetClass();
}

bool FProperty::Identical_InContainer(const void* A, const void* B, int32 ArrayIndex, uint32 PortFlags) const
{
	return Identical(
		ContainerPtrToValuePtr<void>(A, ArrayIndex), B != nullptr ? ContainerPtrToValuePtr<void>(B, ArrayIndex) : nullptr, PortFlags);
}

void FProperty::CopyCompleteValue(void* Dest, void const* Src) const
{
	for (int32 Index = 0; Dest != Src && Index < ArrayDim; ++Index)
	{
		CopyElement((uint8*)Dest + ElementSize * Index, (const uint8*)Src + ElementSize * Index);
	}
}

void FProperty::CopyCompleteValue_InContainer(void* Dest, void const* Src) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
}

void FProperty::InitializeValue(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		InitializeElement((uint8*)Dest + ElementSize * Index);
	}
}

void FProperty::InitializeValue_InContainer(void* Dest) const
{
	InitializeValue(ContainerPtrToValuePtr<void>(Dest));
}

void FProperty::DestroyValue(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		DestroyElement((uint8*)Dest + ElementSize * Index);
	}
}

void FProperty::DestroyValue_InContainer(void* Dest) const
{
	DestroyValue(ContainerPtrToValuePtr<void>(Dest));
}

void FProperty::ClearValue(void* Data) const
{
	DestroyElement(Data);
	InitializeElement(Data);
}

bool FProperty::ExportText_Direct(
	FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Data != Delta && Delta != nullptr && Identical(Data, Delta, uint32(PortFlags)))
	{
		return false;
	}
	ExportTextItem(ValueStr, Data, Delta, Parent, PortFlags, ExportRootScope);
	return true;
}

bool FProperty::ExportText_InContainer(int32 Index, FString& ValueStr, const void* Container, const void* DeltaContainer, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	return ExportText_Direct(ValueStr, ContainerPtrToValuePtr<void>(Container, Index),
		DeltaContainer != nullptr ? ContainerPtrToValuePtr<void>(DeltaContainer, Index) : nullptr, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FProperty::ImportText(const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	return Buffer != nullptr && ShouldPort(uint32(PortFlags)) ? ImportText_Internal(Buffer, Data, PortFlags, OwnerObject, ErrorText)
															  : nullptr;
}

bool FProperty::ShouldPort(uint32 PortFlags) const
{
	return !HasAnyPropertyFlags(CPF_Transient) || (PortFlags & PPF_IncludeTransient) != 0;
}

void FProperty::AddCppProperty(FProperty* Property)
{
	(void)Property;
	checkNoEntry();
}
