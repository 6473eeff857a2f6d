// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"

// Asks which assets there are, without loading them. Assets on disk come from the mount points of StandIn/AssetFiles.h;
// assets in memory are added to every answer and come before those on disk of the same path. Answers are ordered by path.
// Left out: dependencies, tags of files, background scanning (a scan is over when its call returns), cooked registries, chunks.

/** The asset registry. */
class ASSETREGISTRY_API IAssetRegistry
{
public:
	/** The registry, or null while module AssetRegistry is not loaded. */
	static IAssetRegistry* Get();
	/** The registry; fatal while module AssetRegistry is not loaded. */
	static IAssetRegistry& GetChecked();

	IAssetRegistry() {}
	virtual ~IAssetRegistry() {}
	IAssetRegistry(const IAssetRegistry&) = delete;
	IAssetRegistry& operator=(const IAssetRegistry&) = delete;

	/** Says whether a folder has assets. */
	virtual bool HasAssets(const FName PackagePath, const bool bRecursive = false) const = 0;
	virtual bool GetAssetsByPackageName(
		FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Appends a folder's assets; false for None. */
	virtual bool GetAssetsByPath(
		FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Appends the assets of a class by its short name, and of its children if asked for. */
	virtual bool GetAssetsByClass(FName ClassName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses = false) const = 0;
	/** Appends the assets that a filter describes; false (and none) for an empty one. */
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets = true) const = 0;
	/** Calls back with the assets that a filter describes until false comes back. */
	virtual bool EnumerateAssets(
		const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback, bool bSkipARFilteredAssets = true) const = 0;
	/** The asset of a path, or invalid data. */
	virtual FAssetData GetAssetByObjectPath(const FName ObjectPath, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Names of the classes below some, without those excluded; ClassNames themselves are part of it. */
	virtual void GetDerivedClassNames(
		const TArray<FName>& ClassNames, const TSet<FName>& ExcludedClassNames, TSet<FName>& OutDerivedClassNames) const = 0;

	/** All known folders, in order. */
	virtual void GetAllCachedPaths(TArray<FString>& OutPathList) const = 0;
	/** The folders of a folder, in order. */
	virtual void GetSubPaths(const FString& InBasePath, TArray<FString>& OutPathList, bool bInRecurse) const = 0;
	virtual bool PathExists(const FString& PathToTest) const = 0;
	virtual bool AddPath(const FString& PathToAdd) = 0;
	/** Takes a folder away if it has no assets on disk. */
	virtual bool RemovePath(const FString& PathToRemove) = 0;

	/** Scans all mount points that were not scanned yet. */
	virtual void SearchAllAssets(bool bSynchronousSearch) = 0;
	virtual void WaitForCompletion() = 0;
	/** Scans folders (`/Game/Looks`) for new and vanished files; those scanned before only if forced. */
	virtual void ScanPathsSynchronous(
		const TArray<FString>& InPaths, bool bForceRescan = false, bool bIgnoreBlackListScanFilters = false) = 0;
	/** Looks at single files again. */
	virtual void ScanFilesSynchronous(const TArray<FString>& InFilePaths, bool bForceRescan = false) = 0;
	/** Looks at single files again, vanished ones included. */
	virtual void ScanModifiedAssetFiles(const TArray<FString>& InFilePaths) = 0;
	virtual bool IsLoadingAssets() const = 0;

	/** Tells of a new asset in memory. */
	virtual void AssetCreated(UObject* NewAsset) = 0;
	/** Tells of an asset that is being deleted. */
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;
	/** Tells of an asset that has a new path. */
	virtual void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) = 0;
	/** Tells of a package that is being deleted. */
	virtual void PackageDeleted(UPackage* DeletedPackage) = 0;

	DECLARE_EVENT_OneParam(IAssetRegistry, FPathAddedEvent, const FString& /*Path*/);
	virtual FPathAddedEvent& OnPathAdded() = 0;
	DECLARE_EVENT_OneParam(IAssetRegistry, FPathRemovedEvent, const FString& /*Path*/);
	virtual FPathRemovedEvent& OnPathRemoved() = 0;
	DECLARE_EVENT_OneParam(IAssetRegistry, FAssetAddedEvent, const FAssetData&);
	virtual FAssetAddedEvent& OnAssetAdded() = 0;
	DECLARE_EVENT_OneParam(IAssetRegistry, FAssetRemovedEvent, const FAssetData&);
	virtual FAssetRemovedEvent& OnAssetRemoved() = 0;
	DECLARE_EVENT_TwoParams(IAssetRegistry, FAssetRenamedEvent, const FAssetData&, const FString& /*OldObjectPath*/);
	virtual FAssetRenamedEvent& OnAssetRenamed() = 0;
	DECLARE_EVENT_OneParam(IAssetRegistry, FAssetUpdatedEvent, const FAssetData&);
	virtual FAssetUpdatedEvent& OnAssetUpdated() = 0;
	DECLARE_EVENT_OneParam(IAssetRegistry, FInMemoryAssetCreatedEvent, UObject*);
	virtual FInMemoryAssetCreatedEvent& OnInMemoryAssetCreated() = 0;
	DECLARE_EVENT_OneParam(IAssetRegistry, FInMemoryAssetDeletedEvent, UObject*);
	virtual FInMemoryAssetDeletedEvent& OnInMemoryAssetDeleted() = 0;
	DECLARE_EVENT(IAssetRegistry, FFilesLoadedEvent);
	/** After the first scan of all mount points. */
	virtual FFilesLoadedEvent& OnFilesLoaded() = 0;

	/** Progress of a scan. */
	struct FFileLoadProgressUpdateData
	{
		int32 NumTotalAssets = 0;
		int32 NumAssetsProcessedByAssetRegistry = 0;
		int32 NumAssetsPendingDataLoad = 0;
		bool bIsDiscoveringAssetFiles = false;
	};
	DECLARE_EVENT_OneParam(IAssetRegistry, FFileLoadProgressUpdatedEvent, const FFileLoadProgressUpdateData&);
	/** During a scan, about every thousand files. */
	virtual FFileLoadProgressUpdatedEvent& OnFileLoadProgressUpdated() = 0;
};
