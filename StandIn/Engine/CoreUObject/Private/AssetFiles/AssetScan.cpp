// Copyright The Tintmill authors. All rights reserved.

#include "AssetFiles/NativeFolder.h"
#include "Containers/Map.h"
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
			Types.Add(Type.Extension, &Type);
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
	// A file that may be an asset, and the name that it gives.
	struct FCandidate
	{
		FString FileName;
		FString AssetName;
		const StandIn::FAssetFileType* Type;
	};

	// Files with names of their own come before those whose names have to be made up, and those that yield come last.
	void AddFiles(const FString& Folder, const TArray<FString>& Names)
	{
		TArray<FCandidate> Later;
		TArray<FCandidate> Last;
		const FString PackagePath = FindPackagePath(Folder);
		for (const FString& Name : Names)
		{
			if (bStopped)
			{
				return;
			}
			bStopped = Progress && ++NumFiles % FilesAReport == 0 && !Progress(NumFiles);
			int32 Dot = INDEX_NONE;
			if (!Name.FindLastChar(TEXT('.'), Dot) || Name[0] == TEXT('.'))
			{
				continue;
			}
			const StandIn::FAssetFileType* const* Type = Types.Find(Name.RightChop(Dot + 1));
			if (Type == nullptr)
			{
				continue;
			}
			const FString BaseName = Name.Left(Dot);
			const FCandidate Candidate{Folder + Name, StandIn::MakeAssetName(BaseName), *Type};
			if ((*Type)->bYields)
			{
				Last.Add(Candidate);
			}
			else if (Candidate.AssetName.Equals(BaseName))
			{
				AddFile(PackagePath, Candidate);
			}
			else
			{
				Later.Add(Candidate);
			}
		}
		Later.Append(Last);
		for (const FCandidate& Candidate : Later)
		{
			AddFile(PackagePath, Candidate);
		}
	}

	// The start of the package names of all files in a folder; "" where there can be none.
	FString FindPackagePath(const FString& Folder) const
	{
		StandIn::FAssetFile File;
		const bool bFound = Types.Num() > 0 && StandIn::DescribeAssetFile(Folder + TEXT("A.") + Types.begin()->Key, File);
		return bFound ? File.PackageName.LeftChop(1) : FString();
	}

	void AddFile(const FString& PackagePath, const FCandidate& Candidate)
	{
		StandIn::FAssetFile File;
		File.PackageName = PackagePath + Candidate.AssetName;
		File.FileName = Candidate.FileName;
		File.ClassName = Candidate.Type->ClassName;
		const bool bValid = PackagePath.Len() > 0 && File.PackageName.Len() < NAME_SIZE / 2;
		bool bTaken = false;
		if (bValid)
		{
			PackageNames.Add(File.PackageName, &bTaken);
		}
		if (bValid && !bTaken)
		{
			Files.Add(MoveTemp(File));
		}
		else if (!bValid || !Candidate.Type->bYields)
		{
			Report.SkippedFiles.Add(Candidate.FileName);
		}
	}

	TArray<StandIn::FAssetFile>& Files;
	StandIn::FAssetScanReport& Report;
	const TFunction<bool(int32)>& Progress;
	// Sets of strings do not tell upper from lower case: neither do package names.
	TSet<FString> PackageNames;
	TMap<FString, const StandIn::FAssetFileType*> Types;
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
