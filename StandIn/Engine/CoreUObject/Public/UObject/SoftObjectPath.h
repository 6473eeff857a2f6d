// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

// A path that an object is found or loaded by. Left out: redirects, fix-ups for play in the editor, serialisation, TSoftObjectPtr.

class UObject;

/** Path of an object: the asset's path and, behind a colon, a path inside of it. */
struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() {}
	FSoftObjectPath(const FString& Path) { SetPath(Path); }
	FSoftObjectPath(const UObject* InObject);

	FString ToString() const;
	FName GetAssetPathName() const { return AssetPathName; }
	FString GetAssetPathString() const;
	const FString& GetSubPathString() const { return SubPathString; }
	FString GetLongPackageName() const;
	FString GetAssetName() const;
	void SetPath(const FString& Path);
	/** The object if it is in memory, or null. */
	UObject* ResolveObject() const;
	/** The object, loaded if need be, or null. */
	UObject* TryLoad() const;
	bool IsValid() const { return !AssetPathName.IsNone(); }
	bool IsNull() const { return AssetPathName.IsNone(); }
	void Reset();
	bool operator==(const FSoftObjectPath& Other) const
	{
		return AssetPathName == Other.AssetPathName && SubPathString == Other.SubPathString;
	}
	bool operator!=(const FSoftObjectPath& Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FSoftObjectPath& Path) { return GetTypeHash(Path.AssetPathName); }

private:
	FName AssetPathName;
	FString SubPathString;
};
