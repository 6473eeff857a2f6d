// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/StructProperty.h"

IMPLEMENT_FIELD(FStructProperty)

FStructProperty::FStructProperty(
	FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UScriptStruct* InStruct)
	: FProperty(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags, InStruct->GetStructureSize())
	, Struct(InStruct)
{}

int32 FStructProperty::GetMinAlignment() const
{
	return Struct->GetMinAlignment();
}

void FStructProperty::LinkInternal()
{
	PropertyFlags |= ((Struct->StructFlags & STRUCT_ZeroConstructor) ? CPF_ZeroConstructor : CPF_None)
		| ((Struct->StructFlags & STRUCT_IsPlainOldData) ? CPF_IsPlainOldData : CPF_None)
		| ((Struct->StructFlags & STRUCT_NoDestructor) ? CPF_NoDestructor : CPF_None);
}

FString FStructProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)ExtendedTypeText;
	(void)CPPExportFlags;
	return Struct->GetStructCPPName();
}

bool FStructProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Struct == ((const FStructProperty*)Other)->Struct;
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return Struct->CompareScriptStruct(A, B, PortFlags);
}

bool FStructProperty::ContainsObjectReference() const
{
	return Struct->RefLink != nullptr || (Struct->StructFlags & STRUCT_AddStructReferencedObjects) != 0;
}

void FStructProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	Struct->ExportText(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FStructProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	return Struct->ImportText(Buffer, Data, OwnerObject, PortFlags, ErrorText, GetName());
}

void FStructProperty::CopyElement(void* Dest, void const* Src) const
{
	Struct->CopyScriptStruct(Dest, Src);
}

void FStructProperty::InitializeElement(void* Dest) const
{
	Struct->InitializeStruct(Dest);
}

void FStructProperty::DestroyElement(void* Dest) const
{
	Struct->DestroyStruct(Dest);
}
