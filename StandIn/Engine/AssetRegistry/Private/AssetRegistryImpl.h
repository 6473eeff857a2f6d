// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "Containers/Set.h"
#include "FolderStamps.h"
#include "StandIn/AssetFiles.h"

#include <map>
#include <set>

// The asset registry at work.

/** Keeps what scans found and adds what is in memory. */
class FAssetRegistryImpl : public IAssetRegistry
{
public:
	virtual bool HasAssets(const FName PackagePath, const bool bRecursive) const override;
	virtual bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	virtual bool GetAssetsByPath(
		FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const override;
	virtual bool GetAssetsByClass(FName ClassName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const override;
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets) const override;
	virtual bool EnumerateAssets(
		const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback, bool bSkipARFilteredAssets) const override;
	virtual FAssetData GetAssetByObjectPath(const FName ObjectPath, bool bIncludeOnlyOnDiskAssets) const override;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	virtual void GetDerivedClassNames(
		const TArray<FName>& ClassNames, const TSet<FName>& ExcludedClassNames, TSet<FName>& OutDerivedClassNames) const override;
	virtual void GetAllCachedPaths(TArray<FString>& OutPathList) const override;
	virtual void GetSubPaths(const FString& InBasePath, TArray<FString>& OutPathList, bool bInRecurse) const override;
	virtual bool PathExists(const FString& PathToTest) const override;
	virtual bool AddPath(const FString& PathToAdd) override;
	virtual bool RemovePath(const FString& PathToRemove) override;
	virtual void SearchAllAssets(bool bSynchronousSearch) override;
	virtual void WaitForCompletion() override {}
	virtual void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan, bool bIgnoreBlackListScanFilters) override;
	virtual void ScanFilesSynchronous(const TArray<FString>& InFilePaths, bool bForceRescan) override;
	virtual void ScanModifiedAssetFiles(const TArray<FString>& InFilePaths) override;
	virtual bool IsLoadingAssets() const override { return bScanning; }
	virtual void AssetCreated(UObject* NewAsset) override;
	virtual void AssetDeleted(UObject* DeletedAsset) override;
	virtual void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) override;
	virtual void PackageDeleted(UPackage* DeletedPackage) override;
	virtual FPathAddedEvent& OnPathAdded() override { return PathAddedEvent; }
	virtual FPathRemovedEvent& OnPathRemoved() override { return PathRemovedEvent; }
	virtual FAssetAddedEvent& OnAssetAdded() override { return AssetAddedEvent; }
	virtual FAssetRemovedEvent& OnAssetRemoved() override { return AssetRemovedEvent; }
	virtual FAssetRenamedEvent& OnAssetRenamed() override { return AssetRenamedEvent; }
	virtual FAssetUpdatedEvent& OnAssetUpdated() override { return AssetUpdatedEvent; }
	virtual FInMemoryAssetCreatedEvent& OnInMemoryAssetCreated() override { return InMemoryAssetCreatedEvent; }
	virtual FInMemoryAssetDeletedEvent& OnInMemoryAssetDeleted() override { return InMemoryAssetDeletedEvent; }
	virtual FFilesLoadedEvent& OnFilesLoaded() override { return FilesLoadedEvent; }
	virtual FFileLoadProgressUpdatedEvent& OnFileLoadProgressUpdated() override { return FileLoadProgressUpdatedEvent; }

private:
	struct FNameLess
	{
		bool operator()(const FName& A, const FName& B) const { return A.LexicalLess(B); }
	};
	typedef std::map<FName, FAssetData, FNameLess> FAssetMap;

	/** Scans mount points that came and forgets those that went since the last question. */
	void FollowMountPoints() const;
	/** Scans the folder of a path and everything below, unless nothing has changed since the last time. */
	void ScanPath(const FString& Path, const FString& Folder);
	void PutAsset(const FAssetData& Data);
	void DropAsset(FName ObjectPath);
	/** Drops an asset whose file is gone; what is still in memory of it is no asset until there is a file again. */
	void DropGoneAsset(FName ObjectPath);
	void PutPath(const FString& Path);
	/** Calls back with all assets in the order of their paths until false comes back. */
	void VisitAssets(bool bIncludeOnlyOnDiskAssets, TFunctionRef<bool(const FAssetData&)> Callback) const;
	/** Forgets folders at or below a path that are not among those found. */
	void DropPaths(const FString& Path, const std::set<FName, FNameLess>& Found);
	void ReportTrouble(const FString& Folder, const StandIn::FAssetScanReport& Report) const;

	FAssetMap DiskAssets;
	/** Where the next asset of a scan most likely belongs. */
	FAssetMap::iterator NextPlace = DiskAssets.end();
	TSet<FName> GoneAssets;
	std::set<FName, FNameLess> Paths;
	/** Mount points that have been scanned. */
	TArray<StandIn::FMountPoint> ScannedMountPoints;
	FFolderStamps FolderStamps;
	bool bScanning = false;
	bool bToldFilesLoaded = false;

	FPathAddedEvent PathAddedEvent;
	FPathRemovedEvent PathRemovedEvent;
	FAssetAddedEvent AssetAddedEvent;
	FAssetRemovedEvent AssetRemovedEvent;
	FAssetRenamedEvent AssetRenamedEvent;
	FAssetUpdatedEvent AssetUpdatedEvent;
	FInMemoryAssetCreatedEvent InMemoryAssetCreatedEvent;
	FInMemoryAssetDeletedEvent InMemoryAssetDeletedEvent;
	FFilesLoadedEvent FilesLoadedEvent;
	FFileLoadProgressUpdatedEvent FileLoadProgressUpdatedEvent;
};
