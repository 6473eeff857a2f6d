// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/ObjectProperties.h"
#include "Misc/CString.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"
#include "UObject/Package.h"

IMPLEMENT_FIELD(FObjectPropertyBase)
IMPLEMENT_FIELD(FObjectProperty)
IMPLEMENT_FIELD(FClassProperty)
IMPLEMENT_FIELD(FWeakObjectProperty)

namespace StandInPrivate
{
namespace
{
// An object's text taken apart: the class may be missing.
struct FObjectText
{
	FString ClassName;
	FString Path;
};

// Reads Class'"Path"', Class'Path', "Path" or Path and moves behind it; false for a quote that stays open.
bool ReadObjectText(const TCHAR*& Text, FObjectText& OutText)
{
	if (*Text == TEXT('"'))
	{
		return ReadQuoted(Text, OutText.Path, false);
	}
	const TCHAR* Start = Text;
	while (*Text != 0 && *Text != TEXT('\'') && *Text != TEXT(',') && *Text != TEXT(')') && *Text > TEXT(' '))
	{
		++Text;
	}
	const FString First(int32(Text - Start), Start);
	if (*Text != TEXT('\''))
	{
		OutText.Path = First;
		return true;
	}
	OutText.ClassName = First;
	++Text;
	if (*Text == TEXT('"'))
	{
		if (!ReadQuoted(Text, OutText.Path, false))
		{
			return false;
		}
	}
	else
	{
		Start = Text;
		while (*Text != 0 && *Text != TEXT('\''))
		{
			++Text;
		}
		OutText.Path = FString(int32(Text - Start), Start);
	}
	if (*Text != TEXT('\''))
	{
		return false;
	}
	++Text;
	return true;
}

bool IsUsablePath(const FString& Path)
{
	return Path.Len() > 0 && Path.Len() < NAME_SIZE && !Path.Contains(TEXT("//"));
}
}
}

FObjectPropertyBase::FObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass,
	int32 InOffset, EPropertyFlags InFlags, UClass* InPropertyClass, int32 InElementSize)
	: FProperty(InOwner, InName, InObjectFlags, InClass, InOffset, InFlags, InElementSize)
	, PropertyClass(InPropertyClass)
{}

void FObjectPropertyBase::LinkInternal()
{
	PropertyFlags |= CPF_ZeroConstructor | CPF_IsPlainOldData | CPF_NoDestructor | CPF_HasGetValueTypeHash;
}

FString FObjectPropertyBase::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)ExtendedTypeText;
	(void)CPPExportFlags;
	return PropertyClass->GetPrefixedName() + TEXT("*");
}

bool FObjectPropertyBase::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && PropertyClass == ((const FObjectPropertyBase*)Other)->PropertyClass;
}

bool FObjectPropertyBase::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	(void)PortFlags;
	return GetObjectPropertyValue(A) == (B != nullptr ? GetObjectPropertyValue(B) : nullptr);
}

void FObjectPropertyBase::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	(void)DefaultValue;
	(void)Parent;
	(void)ExportRootScope;
	const UObject* Object = GetObjectPropertyValue(PropertyValue);
	if (Object == nullptr)
	{
		ValueStr += TEXT("None");
	}
	else if ((PortFlags & PPF_SimpleObjectText) != 0)
	{
		ValueStr += Object->GetPathName();
	}
	else
	{
		ValueStr += FString::Printf(TEXT("%s'\"%s\"'"), *Object->GetClass()->GetName(), *Object->GetPathName());
	}
}

const TCHAR* FObjectPropertyBase::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	(void)PortFlags;
	(void)OwnerObject;
	const TCHAR* Rest = StandInPrivate::SkipBlanks(Buffer);
	StandInPrivate::FObjectText Text;
	if (!StandInPrivate::ReadObjectText(Rest, Text))
	{
		StandInPrivate::ReportImportProblem(
			ErrorText, FString::Printf(TEXT("the quote of %s is not closed and it was left at its default"), *GetName()));
		return nullptr;
	}
	if (Text.ClassName.Len() == 0 && Text.Path == TEXT("None"))
	{
		SetObjectPropertyValue(Data, nullptr);
		return Rest;
	}
	UObject* Object = nullptr;
	FString Reason(TEXT("does not exist"));
	UClass* Class = PropertyClass;
	if (Text.ClassName.Len() > 0)
	{
		Class = Text.ClassName.Len() < NAME_SIZE ? FindObject<UClass>((UObject*)ANY_PACKAGE, *Text.ClassName) : nullptr;
	}
	if (Class == nullptr)
	{
		Reason = FString::Printf(TEXT("is of class %s, which is not loaded"), *Text.ClassName);
	}
	else if (StandInPrivate::IsUsablePath(Text.Path))
	{
		Object = StaticFindObject(Class, nullptr, *Text.Path);
		if (Object == nullptr && Text.Path.StartsWith(TEXT("/")) && !StandInPrivate::IsKnownMissing(Text.Path))
		{
			Object = StaticLoadObject(Class, nullptr, *Text.Path);
		}
		const UObject* Other = Object == nullptr ? StaticFindObject(UObject::StaticClass(), nullptr, *Text.Path) : nullptr;
		if (Other != nullptr)
		{
			Reason = FString::Printf(TEXT("is a %s, not a %s,"), *Other->GetClass()->GetName(), *Class->GetName());
		}
		else if (Object == nullptr)
		{
			StandInPrivate::NoteMissing(Text.Path);
		}
		if (Object != nullptr && !AcceptsObject(Object, Reason))
		{
			Object = nullptr;
		}
	}
	SetObjectPropertyValue(Data, Object);
	if (Object == nullptr)
	{
		StandInPrivate::ReportImportProblem(ErrorText, ELogVerbosity::Error,
			FString::Printf(TEXT("%s: unresolved reference to '%s'"), *GetName(), *Text.Path),
			FString::Printf(TEXT("the object %s of %s %s and was read as None"), *Text.Path, *GetName(), *Reason));
	}
	return Rest;
}

bool FObjectPropertyBase::AcceptsObject(UObject* Object, FString& OutReason) const
{
	if (!Object->IsA(PropertyClass))
	{
		OutReason = FString::Printf(TEXT("is a %s, not a %s,"), *Object->GetClass()->GetName(), *PropertyClass->GetName());
		return false;
	}
	return true;
}

void FObjectPropertyBase::CopyElement(void* Dest, void const* Src) const
{
	SetObjectPropertyValue(Dest, GetObjectPropertyValue(Src));
}

void FObjectPropertyBase::InitializeElement(void* Dest) const
{
	SetObjectPropertyValue(Dest, nullptr);
}

void FObjectPropertyBase::DestroyElement(void* Dest) const
{
	(void)Dest;
}

FString FClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)CPPExportFlags;
	if (HasAnyPropertyFlags(CPF_UObjectWrapper))
	{
		if (ExtendedTypeText != nullptr)
		{
			*ExtendedTypeText = FString::Printf(TEXT("<%s> "), *MetaClass->GetPrefixedName());
		}
		return FString(TEXT("TSubclassOf"));
	}
	return FString(TEXT("UClass*"));
}

bool FClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && MetaClass == ((const FClassProperty*)Other)->MetaClass;
}

bool FClassProperty::AcceptsObject(UObject* Object, FString& OutReason) const
{
	if (!Super::AcceptsObject(Object, OutReason))
	{
		return false;
	}
	if (!((UClass*)Object)->IsChildOf(MetaClass))
	{
		OutReason = FString::Printf(TEXT("is no child class of %s"), *MetaClass->GetName());
		return false;
	}
	return true;
}

UObject* FWeakObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return ((const FWeakObjectPtr*)PropertyValueAddress)->Get();
}

void FWeakObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*(FWeakObjectPtr*)PropertyValueAddress = FWeakObjectPtr(Value);
}

FString FWeakObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	(void)CPPExportFlags;
	if (ExtendedTypeText != nullptr)
	{
		*ExtendedTypeText = FString::Printf(TEXT("<%s>"), *PropertyClass->GetPrefixedName());
	}
	return FString(TEXT("TWeakObjectPtr"));
}

void FWeakObjectProperty::CopyElement(void* Dest, void const* Src) const
{
	*(FWeakObjectPtr*)Dest = *(const FWeakObjectPtr*)Src;
}

void FWeakObjectProperty::InitializeElement(void* Dest) const
{
	::new (Dest) FWeakObjectPtr();
}
