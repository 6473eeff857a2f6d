// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistry/AssetData.h"
#include "Logging/LogMacros.h"
#include "Misc/PackageName.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogAssetData, Log, All);

FAssetData::FAssetData()
	: PackageFlags(0)
{}

FAssetData::FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FName InAssetClass, FAssetDataTagMap InTags,
	TArrayView<const int32> InChunkIDs, uint32 InPackageFlags)
	: ObjectPath(*(InPackageName.ToString() + TEXT(".") + InAssetName.ToString()))
	, PackageName(InPackageName)
	, PackagePath(InPackagePath)
	, AssetName(InAssetName)
	, AssetClass(InAssetClass)
	, TagsAndValues(MoveTemp(InTags))
	, PackageFlags(InPackageFlags)
{
	for (int32 ChunkID : InChunkIDs)
	{
		ChunkIDs.Add(ChunkID);
	}
}

FAssetData::FAssetData(const FString& InLongPackageName, const FString& InObjectPath, FName InAssetClass, FAssetDataTagMap InTags,
	TArrayView<const int32> InChunkIDs, uint32 InPackageFlags)
	: ObjectPath(*InObjectPath)
	, PackageName(*InLongPackageName)
	, PackagePath(*FPackageName::GetLongPackagePath(InLongPackageName))
	, AssetName(*FPackageName::ObjectPathToObjectName(InObjectPath))
	, AssetClass(InAssetClass)
	, TagsAndValues(MoveTemp(InTags))
	, PackageFlags(InPackageFlags)
{
	for (int32 ChunkID : InChunkIDs)
	{
		ChunkIDs.Add(ChunkID);
	}
}

FAssetData::FAssetData(const UObject* InAsset, bool bAllowBlueprintClass)
	: PackageFlags(0)
{
	(void)bAllowBlueprintClass;
	if (InAsset != nullptr)
	{
		const UPackage* Package = InAsset->GetOutermost();
		PackageName = Package->GetFName();
		PackagePath = FName(*FPackageName::GetLongPackagePath(Package->GetName()));
		AssetName = InAsset->GetFName();
		AssetClass = InAsset->GetClass()->GetFName();
		ObjectPath = FName(*InAsset->GetPathName());
		PackageFlags = Package->GetPackageFlags();
	}
}

bool FAssetData::IsUAsset() const
{
	return FPackageName::GetShortName(PackageName.ToString()) == AssetName.ToString();
}

FString FAssetData::GetFullName() const
{
	FString Result;
	GetFullName(Result);
	return Result;
}

void FAssetData::GetFullName(FString& OutFullName) const
{
	OutFullName = AssetClass.ToString() + TEXT(" ") + ObjectPath.ToString();
}

FString FAssetData::GetExportTextName() const
{
	FString Result;
	GetExportTextName(Result);
	return Result;
}

void FAssetData::GetExportTextName(FString& OutExportTextName) const
{
	OutExportTextName = AssetClass.ToString() + TEXT("'") + ObjectPath.ToString() + TEXT("'");
}

UClass* FAssetData::GetClass() const
{
	if (!IsValid() || AssetClass.IsNone())
	{
		return nullptr;
	}
	UClass* Class = FindObject<UClass>((UObject*)ANY_PACKAGE, *AssetClass.ToString());
	UE_CLOG(Class == nullptr, LogAssetData, Warning, TEXT("Failed to find class %s of asset %s"), *AssetClass.ToString(),
		*ObjectPath.ToString());
	return Class;
}

UObject* FAssetData::FastGetAsset(bool bLoad) const
{
	if (!IsValid())
	{
		return nullptr;
	}
	UObject* Asset = StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath.ToString());
	return Asset == nullptr && bLoad ? StaticLoadObject(UObject::StaticClass(), nullptr, *ObjectPath.ToString()) : Asset;
}

UObject* FAssetData::GetAsset() const
{
	return FastGetAsset(true);
}

UPackage* FAssetData::GetPackage() const
{
	if (PackageName.IsNone())
	{
		return nullptr;
	}
	UPackage* Package = FindPackage(nullptr, *PackageName.ToString());
	return Package != nullptr ? Package : LoadPackage(nullptr, *PackageName.ToString(), LOAD_None);
}

bool FAssetData::GetTagValue(FName InTagName, FString& OutTagValue) const
{
	const FString* Value = TagsAndValues.Find(InTagName);
	if (Value != nullptr)
	{
		OutTagValue = *Value;
	}
	return Value != nullptr;
}

void FAssetData::PrintAssetData() const
{
	UE_LOG(LogAssetData, Log, TEXT("FAssetData for %s: package %s, path %s, name %s, class %s, %d tags"), *ObjectPath.ToString(),
		*PackageName.ToString(), *PackagePath.ToString(), *AssetName.ToString(), *AssetClass.ToString(), TagsAndValues.Num());
}
