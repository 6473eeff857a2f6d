// Copyright The Tintmill authors. All rights reserved.

#include "UObject/MetaData.h"
#include "UObject/Class.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/Package.h"

IMPLEMENT_CLASS(UMetaData, 0)

void UMetaData::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UMetaData(X);
}

UMetaData::UMetaData(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{}

TMap<FName, FString>* UMetaData::GetMapForObject(const UObject* Object)
{
	// Types keep their metadata themselves.
	if (Object->IsA(UField::StaticClass()))
	{
		TMap<FName, FString>& Map = FObjectSystemAccess::TypeMetaData((UField*)Object);
		return Map.Num() > 0 ? &Map : nullptr;
	}
	return Object->GetOutermost()->GetMetaData()->ObjectMetaDataMap.Find(FWeakObjectPtr(Object));
}

const FString* UMetaData::FindValue(const UObject* Object, FName Key)
{
	const TMap<FName, FString>* Map = GetMapForObject(Object);
	return Map != nullptr ? Map->Find(Key) : nullptr;
}

const FString& UMetaData::GetValue(const UObject* Object, FName Key)
{
	static const FString EmptyString;
	const FString* Value = FindValue(Object, Key);
	return Value != nullptr ? *Value : EmptyString;
}

const FString& UMetaData::GetValue(const UObject* Object, const TCHAR* Key)
{
	return GetValue(Object, FName(Key));
}

bool UMetaData::HasValue(const UObject* Object, const TCHAR* Key)
{
	return HasValue(Object, FName(Key));
}

void UMetaData::SetValue(const UObject* Object, FName Key, const TCHAR* Value)
{
	if (Object->IsA(UField::StaticClass()))
	{
		FObjectSystemAccess::TypeMetaData((UField*)Object).Add(Key, FString(Value));
		return;
	}
	check(Object->GetOutermost() == GetOutermost());
	ObjectMetaDataMap.FindOrAdd(FWeakObjectPtr(Object)).Add(Key, FString(Value));
}

void UMetaData::SetValue(const UObject* Object, const TCHAR* Key, const TCHAR* Value)
{
	SetValue(Object, FName(Key), Value);
}

void UMetaData::RemoveValue(const UObject* Object, FName Key)
{
	TMap<FName, FString>* Map = GetMapForObject(Object);
	if (Map != nullptr)
	{
		Map->Remove(Key);
	}
}
