// Copyright The Tintmill authors. All rights reserved.

#include "AssetFiles/NativeFolder.h"
#include "Containers/Set.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"

#include <set>

namespace StandInPrivate
{
namespace
{
// How many files go by between two reports of progress.
const int32 FilesAReport = 1000;

struct FSpellingLess
{
	bool operator()(const FString& A, const FString& B) const { return A.Compare(B) < 0; }
};

// One scan of a folder tree.
class FAssetScan
{
public:
	FAssetScan(TArray<StandIn::FAssetFile>& OutFiles, StandIn::FAssetScanReport& OutReport, const TFunction<bool(int32)>& InProgress)
		: Files(OutFiles)
		, Report(OutReport)
		, Progress(InProgress)
		, NumFiles(0)
		, bStopped(false)
	{
		for (const StandIn::FAssetFileType& Type : StandIn::GetAssetFileTypes())
		{
			Extensions.Add(Type.Extension);
			if (Type.bYields)
			{
				YieldingExtensions.Add(Type.Extension);
			}
		}
	}

	void Scan(const FString& Folder, bool bRecursive)
	{
		// A folder that is reached once more, through a link, is not read again.
		const FString RealFolder = GetRealFolder(Folder);
		if (RealFolder.Len() > 0 && !SeenFolders.insert(RealFolder).second)
		{
			return;
		}
		Report.Folders.Add(Folder);
		FFolderContent Content;
		if (!ListFolder(Folder, Content))
		{
			Report.UnreadableFolders.Add(Folder);
		}
		AddFiles(Folder, Content.Files);
		for (const FString& Name : Content.Folders)
		{
			const FString Child = Folder + Name + TEXT("/");
			if (bRecursive && !bStopped && !Name.StartsWith(TEXT(".")) && !StandIn::IsLeftOutOfAssets(Child))
			{
				Scan(Child, true);
			}
		}
	}

private:
	// Files with names of their own come before those whose names have to be made up, and those that yield come last.
	void AddFiles(const FString& Folder, const TArray<FString>& Names)
	{
		TArray<FString> Later;
		TArray<FString> Last;
		for (const FString& Name : Names)
		{
			if (bStopped)
			{
				return;
			}
			bStopped = Progress && ++NumFiles % FilesAReport == 0 && !Progress(NumFiles);
			if (Name.StartsWith(TEXT(".")) || !Extensions.Contains(FPaths::GetExtension(Name)))
			{
				continue;
			}
			const FString BaseName = FPaths::GetBaseFilename(Name);
			if (YieldingExtensions.Contains(FPaths::GetExtension(Name)))
			{
				Last.Add(Name);
			}
			else if (StandIn::MakeAssetName(BaseName).Equals(BaseName))
			{
				AddFile(Folder + Name, false);
			}
			else
			{
				Later.Add(Name);
			}
		}
		for (const FString& Name : Later)
		{
			AddFile(Folder + Name, false);
		}
		for (const FString& Name : Last)
		{
			AddFile(Folder + Name, true);
		}
	}

	void AddFile(const FString& FileName, bool bYielding)
	{
		StandIn::FAssetFile File;
		const bool bDescribed = StandIn::DescribeAssetFile(FileName, File);
		if (!bDescribed || PackageNames.Contains(File.PackageName))
		{
			if (!bDescribed || !bYielding)
			{
				Report.SkippedFiles.Add(FileName);
			}
			return;
		}
		PackageNames.Add(File.PackageName);
		Files.Add(MoveTemp(File));
	}

	TArray<StandIn::FAssetFile>& Files;
	StandIn::FAssetScanReport& Report;
	const TFunction<bool(int32)>& Progress;
	// Sets of strings do not tell upper from lower case: neither do package names.
	TSet<FString> PackageNames;
	TSet<FString> Extensions;
	TSet<FString> YieldingExtensions;
	std::set<FString, FSpellingLess> SeenFolders;
	int32 NumFiles;
	bool bStopped;
};
}
}

namespace StandIn
{
void ScanAssetFiles(const FString& Directory, bool bRecursive, TArray<FAssetFile>& OutFiles, FAssetScanReport& OutReport,
	const TFunction<bool(int32)>& Progress)
{
	FString Folder = FPaths::ConvertRelativePathToFull(Directory);
	FPaths::NormalizeFilename(Folder);
	StandInPrivate::FAssetScan Scan(OutFiles, OutReport, Progress);
	Scan.Scan(Folder.EndsWith(TEXT("/")) ? Folder : Folder + TEXT("/"), bRecursive);
}
}
