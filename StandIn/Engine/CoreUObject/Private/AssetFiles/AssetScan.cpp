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
		for (const FString& File : Content.Files)
		{
			if (bStopped)
			{
				return;
			}
			AddFile(Folder + File);
		}
		for (const FString& Name : Content.Folders)
		{
			if (bRecursive && !bStopped)
			{
				Scan(Folder + Name + TEXT("/"), true);
			}
		}
	}

private:
	void AddFile(const FString& FileName)
	{
		if (Progress && ++NumFiles % FilesAReport == 0)
		{
			bStopped = !Progress(NumFiles);
		}
		if (!Extensions.Contains(FPaths::GetExtension(FileName)))
		{
			return;
		}
		StandIn::FAssetFile File;
		if (!StandIn::DescribeAssetFile(FileName, File) || PackageNames.Contains(File.PackageName))
		{
			Report.SkippedFiles.Add(FileName);
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
