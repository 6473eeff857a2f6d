// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Class.h"
#include "UObject/NativeTypes.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UnrealType.h"

IMPLEMENT_CLASS(UField, 0)
IMPLEMENT_CLASS(UStruct, 0)

void UField::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UField(X);
}

UField::UField(EStaticConstructor, EObjectFlags InFlags)
	: UObject(EC_StaticConstructor, InFlags)
{}

UField::UField(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{}

const FString* UField::FindMetaData(const FName& Key) const
{
	return TypeMetaData.Find(Key);
}

const FString* UField::FindMetaData(const TCHAR* Key) const
{
	const FName Name(Key, FNAME_Find);
	return Name.IsNone() ? nullptr : FindMetaData(Name);
}

const FString& UField::GetMetaData(const FName& Key) const
{
	static const FString EmptyString;
	const FString* Value = FindMetaData(Key);
	return Value != nullptr ? *Value : EmptyString;
}

const FString& UField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key));
}

bool UField::GetBoolMetaData(const TCHAR* Key) const
{
	const FString* Value = FindMetaData(Key);
	return Value != nullptr && (Value->Len() == 0 || *Value == TEXT("true"));
}

void UField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	TypeMetaData.Add(FName(Key), FString(InValue));
}

UClass* UField::GetOwnerClass() const
{
	for (const UObject* Object = this; Object != nullptr; Object = Object->GetOuter())
	{
		if (Object->IsA(UClass::StaticClass()))
		{
			return (UClass*)Object;
		}
	}
	return nullptr;
}

void UStruct::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UStruct(X);
}

UStruct::UStruct(EStaticConstructor, int32 InSize, int32 InMinAlignment, EObjectFlags InFlags)
	: UField(EC_StaticConstructor, InFlags)
	, ChildProperties(nullptr)
	, PropertyLink(nullptr)
	, RefLink(nullptr)
	, PropertiesSize(InSize)
	, MinAlignment(InMinAlignment)
	, SuperStruct(nullptr)
{}

UStruct::UStruct(const FObjectInitializer& ObjectInitializer)
	: UField(ObjectInitializer)
	, ChildProperties(nullptr)
	, PropertyLink(nullptr)
	, RefLink(nullptr)
	, PropertiesSize(0)
	, MinAlignment(1)
	, SuperStruct(nullptr)
{}

UStruct::~UStruct()
{
	while (ChildProperties != nullptr)
	{
		FField* Next = ChildProperties->Next;
		delete ChildProperties;
		ChildProperties = Next;
	}
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	if (SomeBase == nullptr)
	{
		return false;
	}
	for (const UStruct* Struct = this; Struct != nullptr; Struct = Struct->SuperStruct)
	{
		if (Struct == SomeBase)
		{
			return true;
		}
	}
	return false;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (FProperty* Property = PropertyLink; Property != nullptr; Property = Property->PropertyLinkNext)
	{
		if (Property->GetFName() == InName)
		{
			return Property;
		}
	}
	return nullptr;
}

int32 UStruct::GetStructureSize() const
{
	return (PropertiesSize + MinAlignment - 1) / MinAlignment * MinAlignment;
}

FString UStruct::GetPrefixedName() const
{
	return FString(GetPrefixCPP()) + GetName();
}

void UStruct::AddCppProperty(FProperty* Property)
{
	FField** Last = &ChildProperties;
	while (*Last != nullptr)
	{
		Last = &(*Last)->Next;
	}
	*Last = Property;
}

void UStruct::StaticLink()
{
	FProperty** Link = &PropertyLink;
	FProperty** Ref = &RefLink;
	for (FField* Field = ChildProperties; Field != nullptr; Field = Field->Next)
	{
		FProperty* Property = CastFieldChecked<FProperty>(Field);
		Property->LinkInternal();
		*Link = Property;
		Link = &Property->PropertyLinkNext;
		if (Property->ContainsObjectReference())
		{
			*Ref = Property;
			Ref = &Property->NextRef;
		}
	}
	*Link = SuperStruct != nullptr ? SuperStruct->PropertyLink : nullptr;
	*Ref = SuperStruct != nullptr ? SuperStruct->RefLink : nullptr;
}

void UStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	(void)Dest;
	(void)ArrayDim;
	checkNoEntry();
}

void UStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	(void)Dest;
	(void)ArrayDim;
	checkNoEntry();
}
