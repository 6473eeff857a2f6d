// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/SoftObjectPath.h"
#include <type_traits>

// What is known of an asset without loading it. Left out: chunks (kept, never filled), redirectors, custom versions, bundles;
// there are no Blueprints, so bAllowBlueprintClass changes nothing.

/** Tags of an asset and their values. */
typedef TMap<FName, FString> FAssetDataTagMap;

/** Identity and tags of an asset; two are equal when their object paths are. */
struct COREUOBJECT_API FAssetData
{
	/** `/Game/Dir/Pkg.Obj`. */
	FName ObjectPath;
	/** `/Game/Dir/Pkg`. */
	FName PackageName;
	/** `/Game/Dir`. */
	FName PackagePath;
	FName AssetName;
	/** Name of the class without package and prefix. */
	FName AssetClass;
	FAssetDataTagMap TagsAndValues;
	TArray<int32> ChunkIDs;
	/** EPackageFlags. */
	uint32 PackageFlags;

	/** Invalid data. */
	FAssetData();
	FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FName InAssetClass,
		FAssetDataTagMap InTags = FAssetDataTagMap(), TArrayView<const int32> InChunkIDs = TArrayView<const int32>(),
		uint32 InPackageFlags = 0);
	FAssetData(const FString& InLongPackageName, const FString& InObjectPath, FName InAssetClass,
		FAssetDataTagMap InTags = FAssetDataTagMap(), TArrayView<const int32> InChunkIDs = TArrayView<const int32>(),
		uint32 InPackageFlags = 0);
	/** Data of a loaded asset; invalid data for null. */
	FAssetData(const UObject* InAsset, bool bAllowBlueprintClass = false);

	bool operator==(const FAssetData& Other) const { return ObjectPath == Other.ObjectPath; }
	bool operator!=(const FAssetData& Other) const { return ObjectPath != Other.ObjectPath; }
	bool operator>(const FAssetData& Other) const { return Other.ObjectPath.LexicalLess(ObjectPath); }
	bool operator<(const FAssetData& Other) const { return ObjectPath.LexicalLess(Other.ObjectPath); }

	bool IsValid() const { return !ObjectPath.IsNone(); }
	/** Says whether the asset has its package's name. */
	bool IsUAsset() const;
	/** Always false. */
	bool IsRedirector() const { return false; }
	/** `Class ObjectPath`. */
	FString GetFullName() const;
	void GetFullName(FString& OutFullName) const;
	/** `Class'ObjectPath'`. */
	FString GetExportTextName() const;
	void GetExportTextName(FString& OutExportTextName) const;
	/** The class by its short name, or null when no such class is loaded. */
	UClass* GetClass() const;
	/** The asset, loaded if need be; null for invalid data or a missing asset. */
	UObject* GetAsset() const;
	/** The asset if it is in memory, or loaded if asked for. */
	UObject* FastGetAsset(bool bLoad = false) const;
	/** The asset's package, loaded if need be, or null. */
	UPackage* GetPackage() const;
	bool IsAssetLoaded() const { return FastGetAsset(false) != nullptr; }
	FSoftObjectPath ToSoftObjectPath() const { return FSoftObjectPath(ObjectPath.ToString()); }
	/** Reads a tag's value; false when there is no such tag. */
	bool GetTagValue(FName InTagName, FString& OutTagValue) const;
	/** A tag's value as text, or an empty value for no such tag. */
	template <typename ValueType>
	ValueType GetTagValueRef(FName InTagName) const
	{
		static_assert(
			std::is_same<ValueType, FString>::value, "not in this stand-in: FAssetData::GetTagValueRef for other types than FString");
		FString Value;
		GetTagValue(InTagName, Value);
		return Value;
	}
	bool HasAnyPackageFlags(uint32 FlagsToCheck) const { return (PackageFlags & FlagsToCheck) != 0; }
	/** Writes the data to the log. */
	void PrintAssetData() const;

	friend uint32 GetTypeHash(const FAssetData& AssetData) { return GetTypeHash(AssetData.ObjectPath); }
};
