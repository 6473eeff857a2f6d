// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistryImpl.h"
#include "AssetPaths.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"

// Questions to the registry and news of assets in memory.

namespace AssetRegistryPrivate
{
namespace
{
// A filter with its class names and folders prepared for many tests.
class FAssetTest
{
public:
	FAssetTest(const IAssetRegistry& Registry, const FARFilter& InFilter)
		: Filter(InFilter)
	{
		if (Filter.bRecursiveClasses)
		{
			Registry.GetDerivedClassNames(Filter.ClassNames, Filter.RecursiveClassesExclusionSet, ClassNames);
		}
		else
		{
			for (FName ClassName : Filter.ClassNames)
			{
				ClassNames.Add(ClassName);
			}
		}
		for (FName Path : Filter.PackagePaths)
		{
			Folders.Add(AssetPaths::WithoutSlash(Path.ToString()));
		}
	}

	bool Fits(const FAssetData& Data) const
	{
		return (Filter.PackageNames.Num() == 0 || Filter.PackageNames.Contains(Data.PackageName))
			&& (Filter.ObjectPaths.Num() == 0 || Filter.ObjectPaths.Contains(Data.ObjectPath))
			&& (Filter.ClassNames.Num() == 0 || ClassNames.Contains(Data.AssetClass))
			&& (Folders.Num() == 0 || FitsFolder(Data.PackagePath.ToString())) && (Filter.TagsAndValues.Num() == 0 || FitsTags(Data));
	}

private:
	bool FitsFolder(const FString& Path) const
	{
		return Folders.ContainsByPredicate(
			[&](const FString& Folder) { return Filter.bRecursivePaths ? AssetPaths::IsAtOrBelow(Path, Folder) : Path == Folder; });
	}

	bool FitsTags(const FAssetData& Data) const
	{
		bool bFits = false;
		for (const TPair<FName, TOptional<FString>>& Tag : Filter.TagsAndValues)
		{
			FString Value;
			bFits |= Data.GetTagValue(Tag.Key, Value) && (!Tag.Value.IsSet() || Tag.Value.GetValue() == Value);
		}
		return bFits;
	}

	const FARFilter& Filter;
	TSet<FName> ClassNames;
	TArray<FString> Folders;
};
}
}

void FAssetRegistryImpl::VisitAssets(bool bIncludeOnlyOnDiskAssets, TFunctionRef<bool(const FAssetData&)> Callback) const
{
	FollowMountPoints();
	FAssetMap InMemory;
	if (!bIncludeOnlyOnDiskAssets && UObjectInitialized())
	{
		for (TObjectIterator<UObject> It; It; ++It)
		{
			if (It->IsAsset())
			{
				FAssetData Data(*It);
				if (!It->HasAnyFlags(RF_WasLoaded) || !GoneAssets.Contains(Data.ObjectPath))
				{
					InMemory[Data.ObjectPath] = Data;
				}
			}
		}
	}
	const FNameLess Less;
	auto Memory = InMemory.begin();
	for (auto Disk = DiskAssets.begin(); Disk != DiskAssets.end(); ++Disk)
	{
		for (; Memory != InMemory.end() && Less(Memory->first, Disk->first); ++Memory)
		{
			if (!Callback(Memory->second))
			{
				return;
			}
		}
		const bool bIsInMemory = Memory != InMemory.end() && !Less(Disk->first, Memory->first);
		if (!Callback(bIsInMemory ? Memory->second : Disk->second))
		{
			return;
		}
		Memory = bIsInMemory ? std::next(Memory) : Memory;
	}
	for (; Memory != InMemory.end(); ++Memory)
	{
		if (!Callback(Memory->second))
		{
			return;
		}
	}
}

bool FAssetRegistryImpl::EnumerateAssets(
	const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback, bool bSkipARFilteredAssets) const
{
	(void)bSkipARFilteredAssets;
	if (Filter.IsEmpty())
	{
		return false;
	}
	const AssetRegistryPrivate::FAssetTest Test(*this, Filter);
	VisitAssets(Filter.bIncludeOnlyOnDiskAssets, [&](const FAssetData& Data) { return !Test.Fits(Data) || Callback(Data); });
	return true;
}

bool FAssetRegistryImpl::GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets) const
{
	return EnumerateAssets(
		Filter,
		[&OutAssetData](const FAssetData& Data) {
			OutAssetData.Add(Data);
			return true;
		},
		bSkipARFilteredAssets);
}

bool FAssetRegistryImpl::HasAssets(const FName PackagePath, const bool bRecursive) const
{
	TArray<FAssetData> Assets;
	return GetAssetsByPath(PackagePath, Assets, bRecursive, false) && Assets.Num() > 0;
}

bool FAssetRegistryImpl::GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.PackageNames.Add(PackageName);
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData, true);
}

bool FAssetRegistryImpl::GetAssetsByPath(
	FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const
{
	if (PackagePath.IsNone())
	{
		return false;
	}
	FARFilter Filter;
	Filter.PackagePaths.Add(PackagePath);
	Filter.bRecursivePaths = bRecursive;
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData, true);
}

bool FAssetRegistryImpl::GetAssetsByClass(FName ClassName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const
{
	FARFilter Filter;
	Filter.ClassNames.Add(ClassName);
	Filter.bRecursiveClasses = bSearchSubClasses;
	return GetAssets(Filter, OutAssetData, true);
}

FAssetData FAssetRegistryImpl::GetAssetByObjectPath(const FName ObjectPath, bool bIncludeOnlyOnDiskAssets) const
{
	FollowMountPoints();
	if (!bIncludeOnlyOnDiskAssets && UObjectInitialized() && !ObjectPath.IsNone())
	{
		const UObject* Asset = StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath.ToString());
		const FAssetData Data = Asset != nullptr && Asset->IsAsset() ? FAssetData(Asset) : FAssetData();
		if (Data.IsValid() && (!Asset->HasAnyFlags(RF_WasLoaded) || !GoneAssets.Contains(Data.ObjectPath)))
		{
			return Data;
		}
	}
	const auto Found = DiskAssets.find(ObjectPath);
	return Found != DiskAssets.end() ? Found->second : FAssetData();
}

bool FAssetRegistryImpl::GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	VisitAssets(bIncludeOnlyOnDiskAssets, [&OutAssetData](const FAssetData& Data) {
		OutAssetData.Add(Data);
		return true;
	});
	return true;
}

void FAssetRegistryImpl::GetDerivedClassNames(
	const TArray<FName>& ClassNames, const TSet<FName>& ExcludedClassNames, TSet<FName>& OutDerivedClassNames) const
{
	for (FName ClassName : ClassNames)
	{
		if (ExcludedClassNames.Contains(ClassName))
		{
			continue;
		}
		OutDerivedClassNames.Add(ClassName);
		const UClass* Class = UObjectInitialized() ? FindObject<UClass>((UObject*)ANY_PACKAGE, *ClassName.ToString()) : nullptr;
		TArray<UClass*> Children;
		if (Class != nullptr)
		{
			GetDerivedClasses(Class, Children, false);
		}
		TArray<FName> ChildNames;
		for (const UClass* Child : Children)
		{
			ChildNames.Add(Child->GetFName());
		}
		GetDerivedClassNames(ChildNames, ExcludedClassNames, OutDerivedClassNames);
	}
}

void FAssetRegistryImpl::GetAllCachedPaths(TArray<FString>& OutPathList) const
{
	FollowMountPoints();
	for (const FName& Path : Paths)
	{
		OutPathList.Add(Path.ToString());
	}
}

void FAssetRegistryImpl::GetSubPaths(const FString& InBasePath, TArray<FString>& OutPathList, bool bInRecurse) const
{
	FollowMountPoints();
	const FString Base = AssetPaths::WithoutSlash(InBasePath);
	for (const FName& PathName : Paths)
	{
		const FString Path = PathName.ToString();
		if (!(Path == Base) && AssetPaths::IsAtOrBelow(Path, Base) && (bInRecurse || !Path.RightChop(Base.Len() + 1).Contains(TEXT("/"))))
		{
			OutPathList.Add(Path);
		}
	}
}

bool FAssetRegistryImpl::PathExists(const FString& PathToTest) const
{
	FollowMountPoints();
	return Paths.count(FName(*AssetPaths::WithoutSlash(PathToTest))) != 0;
}

void FAssetRegistryImpl::AssetCreated(UObject* NewAsset)
{
	check(NewAsset != nullptr && NewAsset->IsAsset());
	const FAssetData Data(NewAsset);
	PutPath(Data.PackagePath.ToString());
	AssetAddedEvent.Broadcast(Data);
	InMemoryAssetCreatedEvent.Broadcast(NewAsset);
}

void FAssetRegistryImpl::AssetDeleted(UObject* DeletedAsset)
{
	check(DeletedAsset != nullptr);
	const FAssetData Data(DeletedAsset);
	InMemoryAssetDeletedEvent.Broadcast(DeletedAsset);
	AssetRemovedEvent.Broadcast(Data);
}

void FAssetRegistryImpl::AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
{
	check(RenamedAsset != nullptr);
	const FAssetData Data(RenamedAsset);
	PutPath(Data.PackagePath.ToString());
	AssetRenamedEvent.Broadcast(Data, OldObjectPath);
}

void FAssetRegistryImpl::PackageDeleted(UPackage* DeletedPackage)
{
	check(DeletedPackage != nullptr);
	TArray<UObject*> Objects;
	GetObjectsWithOuter(DeletedPackage, Objects, false);
	for (UObject* Object : Objects)
	{
		if (Object->IsAsset())
		{
			AssetDeleted(Object);
		}
	}
}
