// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Field.h"
#include "UObject/Class.h"

FFieldClass::FFieldClass(const TCHAR* InName, uint64 InCastFlags, FFieldClass* InSuperClass)
	: Name(InName)
	, CastFlags(InCastFlags)
	, SuperClass(InSuperClass)
{}

bool FFieldClass::IsChildOf(const FFieldClass* InClass) const
{
	for (const FFieldClass* Class = this; Class != nullptr; Class = Class->SuperClass)
	{
		if (Class == InClass)
		{
			return true;
		}
	}
	return false;
}

FFieldClass* FField::StaticClass()
{
	static FFieldClass StaticFieldClass(TEXT("Field"), 0, nullptr);
	return &StaticFieldClass;
}

FField::FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass)
	: Owner(InOwner)
	, Next(nullptr)
	, NamePrivate(InName)
	, FlagsPrivate(InObjectFlags)
	, ClassPrivate(InClass)
	, MetaDataMap(nullptr)
{}

FField::~FField()
{
	delete MetaDataMap;
}

UObject* FField::GetOwnerUObject() const
{
	FFieldVariant Variant = Owner;
	while (Variant.ToField() != nullptr)
	{
		Variant = Variant.ToField()->Owner;
	}
	return Variant.ToUObject();
}

UClass* FField::GetOwnerClass() const
{
	UObject* Object = GetOwnerUObject();
	return Object != nullptr && Object->IsA(UClass::StaticClass()) ? (UClass*)Object : nullptr;
}

UStruct* FField::GetOwnerStruct() const
{
	UObject* Object = Owner.ToUObject();
	return Object != nullptr && Object->IsA(UStruct::StaticClass()) ? (UStruct*)Object : nullptr;
}

FString FField::GetPathName(const UObject* StopOuter) const
{
	const FString OwnerPath = Owner.IsUObject() ? Owner.ToUObject()->GetPathName(StopOuter) : Owner.ToField()->GetPathName(StopOuter);
	return OwnerPath + (Owner.IsUObject() ? TEXT(":") : TEXT(".")) + GetName();
}

FString FField::GetFullName() const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName();
}

const FString* FField::FindMetaData(const FName& Key) const
{
	return MetaDataMap != nullptr ? MetaDataMap->Find(Key) : nullptr;
}

const FString* FField::FindMetaData(const TCHAR* Key) const
{
	const FName Name(Key, FNAME_Find);
	return Name.IsNone() ? nullptr : FindMetaData(Name);
}

const FString& FField::GetMetaData(const FName& Key) const
{
	static const FString EmptyString;
	const FString* Value = FindMetaData(Key);
	return Value != nullptr ? *Value : EmptyString;
}

const FString& FField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key));
}

bool FField::GetBoolMetaData(const TCHAR* Key) const
{
	const FString* Value = FindMetaData(Key);
	return Value != nullptr && (Value->Len() == 0 || *Value == TEXT("true"));
}

void FField::SetMetaData(const FName& Key, const FString& InValue)
{
	if (MetaDataMap == nullptr)
	{
		MetaDataMap = new TMap<FName, FString>;
	}
	MetaDataMap->Add(Key, InValue);
}

void FField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	SetMetaData(FName(Key), FString(InValue));
}
