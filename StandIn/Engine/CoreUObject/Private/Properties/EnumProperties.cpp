// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/EnumProperties.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"

IMPLEMENT_FIELD(FByteProperty)
IMPLEMENT_FIELD(FEnumProperty)

namespace StandInPrivate
{
namespace
{
void ExportEnumerator(FString& ValueStr, const UEnum* Enum, int64 Value)
{
	ValueStr += Enum->IsValidEnumValue(Value) ? Enum->GetNameStringByValue(Value) : FString(TEXT("(INVALID)"));
}

// Reads an enumerator's short or full name; null when there is none of the name.
const TCHAR* ImportEnumerator(const FProperty* Property, const UEnum* Enum, const TCHAR* Buffer, int64& OutValue, FOutputDevice* ErrorText)
{
	const TCHAR* Rest = SkipBlanks(Buffer);
	FString Token;
	const bool bClosed = ReadQuotedOrToken(Rest, Token, false);
	const int32 Index = bClosed && Token.Len() > 0 && Token.Len() < NAME_SIZE ? Enum->GetIndexByNameString(Token) : INDEX_NONE;
	if (Index == INDEX_NONE)
	{
		ReportImportProblem(ErrorText,
			FString::Printf(TEXT("%s=%s names no value of %s and was left at its default"), *Property->GetName(),
				*Excerpt(SkipBlanks(Buffer)), *Enum->GetName()));
		return nullptr;
	}
	OutValue = Enum->GetValueByIndex(Index);
	return Rest;
}

}
}

FString FByteProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)ExtendedTypeText;
	(void)CPPExportFlags;
	return Enum != nullptr ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->CppType) : FString(TEXT("uint8"));
}

bool FByteProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Enum == ((const FByteProperty*)Other)->Enum;
}

void FByteProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
	UObject* ExportRootScope) const
{
	if (Enum != nullptr)
	{
		StandInPrivate::ExportEnumerator(ValueStr, Enum, *(const uint8*)PropertyValue);
		return;
	}
	Super::ExportTextItem(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FByteProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	if (Enum == nullptr)
	{
		return Super::ImportText_Internal(Buffer, Data, PortFlags, OwnerObject, ErrorText);
	}
	int64 Value = 0;
	const TCHAR* Rest = StandInPrivate::ImportEnumerator(this, Enum, Buffer, Value, ErrorText);
	if (Rest != nullptr)
	{
		*(uint8*)Data = uint8(Value);
	}
	return Rest;
}

FEnumProperty::FEnumProperty(
	FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UEnum* InEnum)
	: FProperty(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags, 0)
	, UnderlyingProp(nullptr)
	, Enum(InEnum)
{}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

void FEnumProperty::AddCppProperty(FProperty* Inner)
{
	check(UnderlyingProp == nullptr);
	UnderlyingProp = CastFieldChecked<FNumericProperty>(Inner);
	ElementSize = UnderlyingProp->ElementSize;
}

int32 FEnumProperty::GetMinAlignment() const
{
	return UnderlyingProp->GetMinAlignment();
}

void FEnumProperty::LinkInternal()
{
	check(UnderlyingProp != nullptr);
	UnderlyingProp->LinkInternal();
	PropertyFlags |= UnderlyingProp->PropertyFlags & CPF_ComputedFlags;
}

FString FEnumProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)ExtendedTypeText;
	(void)CPPExportFlags;
	return Enum->CppType;
}

bool FEnumProperty::SameType(const FProperty* Other) const
{
	return FProperty::SameType(Other) && Enum == ((const FEnumProperty*)Other)->Enum;
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return UnderlyingProp->Identical(A, B, PortFlags);
}

void FEnumProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
	UObject* ExportRootScope) const
{
	(void)DefaultValue;
	(void)Parent;
	(void)PortFlags;
	(void)ExportRootScope;
	StandInPrivate::ExportEnumerator(ValueStr, Enum, UnderlyingProp->GetSignedIntPropertyValue(PropertyValue));
}

const TCHAR* FEnumProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	(void)PortFlags;
	(void)OwnerObject;
	int64 Value = 0;
	const TCHAR* Rest = StandInPrivate::ImportEnumerator(this, Enum, Buffer, Value, ErrorText);
	if (Rest != nullptr)
	{
		UnderlyingProp->SetIntPropertyValue(Data, Value);
	}
	return Rest;
}

void FEnumProperty::CopyElement(void* Dest, void const* Src) const
{
	UnderlyingProp->CopySingleValue(Dest, Src);
}

void FEnumProperty::InitializeElement(void* Dest) const
{
	UnderlyingProp->InitializeValue(Dest);
}

void FEnumProperty::DestroyElement(void* Dest) const
{
	UnderlyingProp->DestroyValue(Dest);
}
