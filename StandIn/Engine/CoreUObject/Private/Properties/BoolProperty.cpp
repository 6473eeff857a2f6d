// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/BoolProperty.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"

IMPLEMENT_FIELD(FBoolProperty)

FBoolProperty::FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
	uint8 InBitMask, uint32 InElementSize, bool bInIsNativeBool)
	: FProperty(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags, bInIsNativeBool ? int32(InElementSize) : 1)
	, FieldMask(InBitMask)
{}

void FBoolProperty::SetPropertyValue(void* A, bool Value) const
{
	uint8& Byte = *(uint8*)A;
	Byte = IsNativeBool() ? uint8(Value ? 1 : 0) : uint8((Byte & ~FieldMask) | (Value ? FieldMask : 0));
}

void FBoolProperty::LinkInternal()
{
	PropertyFlags |= CPF_ZeroConstructor | CPF_NoDestructor | (IsNativeBool() ? CPF_IsPlainOldData : CPF_None);
}

FString FBoolProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)ExtendedTypeText;
	(void)CPPExportFlags;
	return FString(IsNativeBool() ? TEXT("bool") : TEXT("uint8"));
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	(void)PortFlags;
	return GetPropertyValue(A) == (B != nullptr && GetPropertyValue(B));
}

void FBoolProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
	UObject* ExportRootScope) const
{
	(void)DefaultValue;
	(void)Parent;
	(void)PortFlags;
	(void)ExportRootScope;
	ValueStr += GetPropertyValue(PropertyValue) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	(void)PortFlags;
	(void)OwnerObject;
	const TCHAR* Rest = StandInPrivate::SkipBlanks(Buffer);
	const FString Token = StandInPrivate::ReadToken(Rest);
	if (Token == TEXT("True") || Token == TEXT("Yes") || Token == TEXT("1"))
	{
		SetPropertyValue(Data, true);
		return Rest;
	}
	if (Token == TEXT("False") || Token == TEXT("No") || Token == TEXT("0"))
	{
		SetPropertyValue(Data, false);
		return Rest;
	}
	StandInPrivate::ReportImportProblem(ErrorText,
		FString::Printf(TEXT("%s=%s is neither True nor False and was left at its default"), *GetName(),
			*StandInPrivate::Excerpt(StandInPrivate::SkipBlanks(Buffer))));
	return nullptr;
}

void FBoolProperty::CopyElement(void* Dest, void const* Src) const
{
	SetPropertyValue(Dest, GetPropertyValue(Src));
}

void FBoolProperty::InitializeElement(void* Dest) const
{
	SetPropertyValue(Dest, false);
}

void FBoolProperty::DestroyElement(void* Dest) const
{
	(void)Dest;
}
