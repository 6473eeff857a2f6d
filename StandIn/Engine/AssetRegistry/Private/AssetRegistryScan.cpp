// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistryImpl.h"
#include "AssetPaths.h"
#include "Logging/LogMacros.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "StandIn/Notices.h"

// What the registry learns from the disk.

DEFINE_LOG_CATEGORY_STATIC(LogAssetRegistry, Log, All);

namespace AssetRegistryPrivate
{
namespace
{
FAssetData MakeAssetData(const StandIn::FAssetFile& File)
{
	return FAssetData(FName(*File.PackageName), FName(*FPackageName::GetLongPackagePath(File.PackageName)),
		FName(*FPackageName::GetShortName(File.PackageName)), File.ClassName);
}

// The path of a folder below the one of a path, by the names that the files in it have.
FString MakePath(const FString& Path, const FString& Below)
{
	TArray<FString> Parts;
	Below.ParseIntoArray(Parts, TEXT("/"));
	FString Result = AssetPaths::WithoutSlash(Path);
	for (const FString& Part : Parts)
	{
		Result += TEXT("/") + StandIn::MakeAssetName(Part);
	}
	return Result;
}

bool IsSameMountPoint(const StandIn::FMountPoint& A, const StandIn::FMountPoint& B)
{
	return A.RootPath == B.RootPath && A.Directory.Equals(B.Directory);
}
}
}

void FAssetRegistryImpl::PutPath(const FString& Path)
{
	for (FString Folder = AssetPaths::WithoutSlash(Path); Folder.Len() > 1; Folder = FPackageName::GetLongPackagePath(Folder))
	{
		if (!Paths.insert(FName(*Folder)).second)
		{
			return;
		}
		PathAddedEvent.Broadcast(Folder);
	}
}

void FAssetRegistryImpl::PutAsset(const FAssetData& Data)
{
	if (GoneAssets.Num() > 0)
	{
		GoneAssets.Remove(Data.ObjectPath);
	}
	// Scans come in order, so that the place is most often behind the last one.
	const size_t NumBefore = DiskAssets.size();
	const auto Place = DiskAssets.emplace_hint(NextPlace, Data.ObjectPath, Data);
	NextPlace = std::next(Place);
	if (DiskAssets.size() != NumBefore)
	{
		PutPath(Data.PackagePath.ToString());
		AssetAddedEvent.Broadcast(Data);
	}
	else if (Place->second.AssetClass != Data.AssetClass)
	{
		Place->second = Data;
		AssetUpdatedEvent.Broadcast(Data);
	}
}

void FAssetRegistryImpl::DropAsset(FName ObjectPath)
{
	const auto Found = DiskAssets.find(ObjectPath);
	if (Found != DiskAssets.end())
	{
		const FAssetData Data = Found->second;
		NextPlace = NextPlace == Found ? std::next(Found) : NextPlace;
		DiskAssets.erase(Found);
		AssetRemovedEvent.Broadcast(Data);
	}
}

void FAssetRegistryImpl::DropGoneAsset(FName ObjectPath)
{
	GoneAssets.Add(ObjectPath);
	DropAsset(ObjectPath);
}

bool FAssetRegistryImpl::AddPath(const FString& PathToAdd)
{
	if (PathExists(PathToAdd) || !PathToAdd.StartsWith(TEXT("/")))
	{
		return false;
	}
	PutPath(PathToAdd);
	FolderStamps.Forget();
	return true;
}

bool FAssetRegistryImpl::RemovePath(const FString& PathToRemove)
{
	const FString Path = AssetPaths::WithoutSlash(PathToRemove);
	for (const auto& Entry : DiskAssets)
	{
		if (AssetPaths::IsAtOrBelow(Entry.second.PackagePath.ToString(), Path))
		{
			return false;
		}
	}
	if (Paths.erase(FName(*Path)) == 0)
	{
		return false;
	}
	FolderStamps.Forget();
	PathRemovedEvent.Broadcast(Path);
	return true;
}

void FAssetRegistryImpl::DropPaths(const FString& Path, const std::set<FName, FNameLess>& Found)
{
	TArray<FString> Gone;
	for (const FName& Known : Paths)
	{
		if (Found.count(Known) == 0 && AssetPaths::IsAtOrBelow(Known.ToString(), Path))
		{
			Gone.Add(Known.ToString());
		}
	}
	for (const FString& GonePath : Gone)
	{
		Paths.erase(FName(*GonePath));
		PathRemovedEvent.Broadcast(GonePath);
	}
}

void FAssetRegistryImpl::ReportTrouble(const FString& Folder, const StandIn::FAssetScanReport& Report) const
{
	const FString UnreadableKey = TEXT("AssetRegistry|Unreadable|") + Folder;
	const FString SkippedKey = TEXT("AssetRegistry|Skipped|") + Folder;
	StandIn::ClearNotice(UnreadableKey);
	StandIn::ClearNotice(SkippedKey);
	if (Report.UnreadableFolders.Num() > 0)
	{
		StandIn::AddNotice(UnreadableKey,
			FString::Printf(
				TEXT("%d folders with assets cannot be read, the first one is %s. Their assets are not listed. Check who may read them."),
				Report.UnreadableFolders.Num(), *Report.UnreadableFolders[0]));
	}
	if (Report.SkippedFiles.Num() > 0)
	{
		StandIn::AddNotice(SkippedKey,
			FString::Printf(TEXT("%d asset files are not listed, because their names differ from others in case, extension or characters "
								 "that asset names may not have only, or are too long; the first one is %s. Rename them."),
				Report.SkippedFiles.Num(), *Report.SkippedFiles[0]));
	}
}

void FAssetRegistryImpl::ScanPath(const FString& Path, const FString& Folder)
{
	if (FolderStamps.IsUnchanged(Folder))
	{
		return;
	}
	const std::filesystem::file_time_type ScanStart = FFolderStamps::Now();
	TArray<StandIn::FAssetFile> Files;
	StandIn::FAssetScanReport Report;
	bScanning = true;
	StandIn::ScanAssetFiles(Folder, true, Files, Report, [this](int32 NumFiles) {
		FFileLoadProgressUpdateData Progress;
		Progress.NumTotalAssets = NumFiles;
		Progress.NumAssetsProcessedByAssetRegistry = NumFiles;
		Progress.bIsDiscoveringAssetFiles = true;
		FileLoadProgressUpdatedEvent.Broadcast(Progress);
		return true;
	});
	bScanning = false;
	PutPath(Path);
	TSet<FName> Found;
	Found.Reserve(Files.Num());
	for (const StandIn::FAssetFile& File : Files)
	{
		const FAssetData Data = AssetRegistryPrivate::MakeAssetData(File);
		Found.Add(Data.ObjectPath);
		PutAsset(Data);
	}
	TArray<FName> Gone;
	for (const auto& Entry : DiskAssets)
	{
		if (!Found.Contains(Entry.first) && AssetPaths::IsAtOrBelow(Entry.second.PackagePath.ToString(), Path))
		{
			Gone.Add(Entry.first);
		}
	}
	for (const FName& ObjectPath : Gone)
	{
		DropGoneAsset(ObjectPath);
	}
	std::set<FName, FNameLess> FoundPaths;
	for (const FString& FoundFolder : Report.Folders)
	{
		const FString FoundPath = AssetRegistryPrivate::MakePath(Path, FoundFolder.RightChop(Folder.Len()));
		FoundPaths.insert(FName(*FoundPath));
		PutPath(FoundPath);
	}
	DropPaths(Path, FoundPaths);
	ReportTrouble(Folder, Report);
	if (Report.UnreadableFolders.Num() == 0)
	{
		FolderStamps.Remember(Folder, Report.Folders, ScanStart);
	}
	UE_LOG(LogAssetRegistry, Log, TEXT("Found %d assets in %d folders of %s"), Files.Num(), Report.Folders.Num(), *Folder);
}

void FAssetRegistryImpl::FollowMountPoints() const
{
	// What a question finds out belongs to the registry's memory, not to its answer.
	FAssetRegistryImpl* Self = const_cast<FAssetRegistryImpl*>(this);
	if (!bScanning)
	{
		Self->SearchAllAssets(true);
	}
}

void FAssetRegistryImpl::SearchAllAssets(bool bSynchronousSearch)
{
	(void)bSynchronousSearch;
	const TArray<StandIn::FMountPoint> MountPoints = StandIn::GetMountPoints();
	const auto IsIn = [](const TArray<StandIn::FMountPoint>& List, const StandIn::FMountPoint& MountPoint) {
		return List.ContainsByPredicate(
			[&MountPoint](const StandIn::FMountPoint& Other) { return AssetRegistryPrivate::IsSameMountPoint(Other, MountPoint); });
	};
	for (int32 Index = ScannedMountPoints.Num() - 1; Index >= 0; --Index)
	{
		const StandIn::FMountPoint MountPoint = ScannedMountPoints[Index];
		if (!IsIn(MountPoints, MountPoint))
		{
			ScannedMountPoints.RemoveAt(Index);
			FolderStamps.Forget();
			const FString Root = AssetPaths::WithoutSlash(MountPoint.RootPath);
			TArray<FName> Gone;
			for (const auto& Entry : DiskAssets)
			{
				if (AssetPaths::IsAtOrBelow(Entry.second.PackagePath.ToString(), Root))
				{
					Gone.Add(Entry.first);
				}
			}
			for (const FName& ObjectPath : Gone)
			{
				DropAsset(ObjectPath);
			}
			DropPaths(Root, std::set<FName, FNameLess>());
		}
	}
	for (const StandIn::FMountPoint& MountPoint : MountPoints)
	{
		if (!IsIn(ScannedMountPoints, MountPoint))
		{
			ScannedMountPoints.Add(MountPoint);
			ScanPath(AssetPaths::WithoutSlash(MountPoint.RootPath), MountPoint.Directory);
		}
	}
	if (!bToldFilesLoaded && MountPoints.Num() > 0)
	{
		bToldFilesLoaded = true;
		FilesLoadedEvent.Broadcast();
	}
}

void FAssetRegistryImpl::ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan, bool bIgnoreBlackListScanFilters)
{
	(void)bIgnoreBlackListScanFilters;
	const TArray<StandIn::FMountPoint> ScannedBefore = ScannedMountPoints;
	FollowMountPoints();
	for (const FString& InPath : InPaths)
	{
		const FString Path = AssetPaths::WithoutSlash(InPath);
		const auto IsRoot = [&Path](
								const StandIn::FMountPoint& MountPoint) { return AssetPaths::WithoutSlash(MountPoint.RootPath) == Path; };
		const bool bScannedJustNow = ScannedMountPoints.ContainsByPredicate(IsRoot) && !ScannedBefore.ContainsByPredicate(IsRoot);
		FString Folder;
		if (bForceRescan && !bScannedJustNow && StandIn::FindAssetFolder(Path, Folder))
		{
			ScanPath(Path, Folder);
		}
	}
}

void FAssetRegistryImpl::ScanFilesSynchronous(const TArray<FString>& InFilePaths, bool bForceRescan)
{
	(void)bForceRescan;
	ScanModifiedAssetFiles(InFilePaths);
}

void FAssetRegistryImpl::ScanModifiedAssetFiles(const TArray<FString>& InFilePaths)
{
	FollowMountPoints();
	for (const FString& FileName : InFilePaths)
	{
		StandIn::FAssetFile File;
		if (!StandIn::DescribeAssetFile(FileName, File))
		{
			continue;
		}
		// Another file of the same package name may be the asset's.
		StandIn::FAssetFile Present;
		if (StandIn::FindAssetFile(File.PackageName, Present))
		{
			PutAsset(AssetRegistryPrivate::MakeAssetData(Present));
		}
		else
		{
			DropGoneAsset(AssetRegistryPrivate::MakeAssetData(File).ObjectPath);
		}
	}
}
