// Copyright The Tintmill authors. All rights reserved.

#include "UObject/SoftObjectPath.h"
#include "Misc/PackageName.h"
#include "UObject/Class.h"

FSoftObjectPath::FSoftObjectPath(const UObject* InObject)
{
	if (InObject != nullptr)
	{
		SetPath(InObject->GetPathName());
	}
}

void FSoftObjectPath::Reset()
{
	AssetPathName = FName();
	SubPathString.Reset();
}

void FSoftObjectPath::SetPath(const FString& Path)
{
	Reset();
	if (Path.Len() == 0 || Path == TEXT("None"))
	{
		return;
	}
	int32 Colon = INDEX_NONE;
	if (Path.FindChar(TEXT(':'), Colon))
	{
		AssetPathName = FName(*Path.Left(Colon));
		SubPathString = Path.RightChop(Colon + 1);
	}
	else
	{
		AssetPathName = FName(*Path);
	}
}

FString FSoftObjectPath::ToString() const
{
	const FString AssetPath = GetAssetPathString();
	return SubPathString.Len() > 0 ? AssetPath + TEXT(":") + SubPathString : AssetPath;
}

FString FSoftObjectPath::GetAssetPathString() const
{
	return IsNull() ? FString() : AssetPathName.ToString();
}

FString FSoftObjectPath::GetLongPackageName() const
{
	return FPackageName::ObjectPathToPackageName(GetAssetPathString());
}

FString FSoftObjectPath::GetAssetName() const
{
	const FString AssetPath = GetAssetPathString();
	return AssetPath.Contains(TEXT(".")) ? FPackageName::ObjectPathToObjectName(AssetPath) : FString();
}

UObject* FSoftObjectPath::ResolveObject() const
{
	return IsNull() ? nullptr : StaticFindObject(UObject::StaticClass(), nullptr, *ToString());
}

UObject* FSoftObjectPath::TryLoad() const
{
	return IsNull() ? nullptr : StaticLoadObject(UObject::StaticClass(), nullptr, *ToString());
}
