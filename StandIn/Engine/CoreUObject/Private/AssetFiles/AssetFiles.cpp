// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetFiles.h"
#include "AssetFiles/NativeFolder.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"

namespace StandInPrivate
{
namespace
{
struct FAssetFileRegistry
{
	TArray<StandIn::FAssetFileType> Types;
	TArray<StandIn::FMountPoint> MountPoints;
};

FAssetFileRegistry& GetAssetFileRegistry()
{
	static FAssetFileRegistry* Registry = new FAssetFileRegistry;
	return *Registry;
}

FString StripDot(const FString& Extension)
{
	return Extension.StartsWith(TEXT(".")) ? Extension.RightChop(1) : Extension;
}

FString MakeFolderName(const FString& Directory)
{
	FString Folder = FPaths::ConvertRelativePathToFull(Directory);
	FPaths::NormalizeFilename(Folder);
	return Folder.EndsWith(TEXT("/")) ? Folder : Folder + TEXT("/");
}

const StandIn::FAssetFileType* FindType(const FString& FileName)
{
	const FString Extension = FPaths::GetExtension(FileName);
	return Extension.Len() == 0 ? nullptr : GetAssetFileRegistry().Types.FindByPredicate([&Extension](const StandIn::FAssetFileType& Type) {
		return Type.Extension == Extension;
	});
}

// The mount point with the longest root that a name starts with.
const StandIn::FMountPoint* FindMountPoint(const FString& PackageName)
{
	const StandIn::FMountPoint* Best = nullptr;
	for (const StandIn::FMountPoint& MountPoint : GetAssetFileRegistry().MountPoints)
	{
		if (PackageName.StartsWith(MountPoint.RootPath) && (Best == nullptr || MountPoint.RootPath.Len() > Best->RootPath.Len()))
		{
			Best = &MountPoint;
		}
	}
	return Best;
}

// The mount point with the longest folder that a file lies in.
const StandIn::FMountPoint* FindMountPointOfFile(const FString& FileName)
{
	const StandIn::FMountPoint* Best = nullptr;
	for (const StandIn::FMountPoint& MountPoint : GetAssetFileRegistry().MountPoints)
	{
		if (FileName.StartsWith(MountPoint.Directory, ESearchCase::CaseSensitive)
			&& (Best == nullptr || MountPoint.Directory.Len() > Best->Directory.Len()))
		{
			Best = &MountPoint;
		}
	}
	return Best;
}

// The name in a folder that is a wanted one in any spelling; the exact spelling wins.
bool FindSpelling(const TArray<FString>& Names, const FString& Wanted, FString& OutName)
{
	bool bFound = false;
	for (const FString& Name : Names)
	{
		if (Name.Equals(Wanted) || (!bFound && Name == Wanted))
		{
			OutName = Name;
			bFound = true;
		}
	}
	return bFound;
}
}
}

namespace StandIn
{
void RegisterAssetFileType(const FAssetFileType& Type)
{
	FAssetFileType Added = Type;
	Added.Extension = StandInPrivate::StripDot(Type.Extension);
	check(Added.Extension.Len() > 0 && !Added.ClassName.IsNone());
	UnregisterAssetFileType(Added.Extension);
	StandInPrivate::GetAssetFileRegistry().Types.Add(Added);
}

void UnregisterAssetFileType(const FString& Extension)
{
	const FString Wanted = StandInPrivate::StripDot(Extension);
	StandInPrivate::GetAssetFileRegistry().Types.RemoveAll([&Wanted](const FAssetFileType& Type) { return Type.Extension == Wanted; });
}

const TArray<FAssetFileType>& GetAssetFileTypes()
{
	return StandInPrivate::GetAssetFileRegistry().Types;
}

void RegisterMountPoint(const FString& RootPath, const FString& Directory)
{
	checkf(RootPath.StartsWith(TEXT("/")) && RootPath.EndsWith(TEXT("/")) && RootPath.Len() > 2,
		TEXT("A mount point's root has slashes at both ends: %s"), *RootPath);
	UnregisterMountPoint(RootPath);
	FMountPoint MountPoint;
	MountPoint.RootPath = RootPath;
	MountPoint.Directory = StandInPrivate::MakeFolderName(Directory);
	StandInPrivate::GetAssetFileRegistry().MountPoints.Add(MountPoint);
}

void UnregisterMountPoint(const FString& RootPath)
{
	StandInPrivate::GetAssetFileRegistry().MountPoints.RemoveAll(
		[&RootPath](const FMountPoint& MountPoint) { return MountPoint.RootPath == RootPath; });
}

const TArray<FMountPoint>& GetMountPoints()
{
	return StandInPrivate::GetAssetFileRegistry().MountPoints;
}

bool FindAssetFile(const FString& LongPackageName, FAssetFile& OutFile)
{
	const FMountPoint* MountPoint = StandInPrivate::FindMountPoint(LongPackageName);
	if (MountPoint == nullptr || !FPackageName::IsValidLongPackageName(LongPackageName))
	{
		return false;
	}
	TArray<FString> Parts;
	LongPackageName.RightChop(MountPoint->RootPath.Len()).ParseIntoArray(Parts, TEXT("/"));
	FString Folder = MountPoint->Directory;
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		StandInPrivate::FFolderContent Content;
		const bool bIsFile = Index + 1 == Parts.Num();
		// Where the system takes any spelling of a name, only the listing knows the one that was given.
		if (!PLATFORM_WINDOWS && !bIsFile && FPaths::DirectoryExists(Folder + Parts[Index]))
		{
			Folder += Parts[Index] + TEXT("/");
			continue;
		}
		StandInPrivate::ListFolder(Folder, Content);
		FString Name;
		if (!bIsFile)
		{
			if (!StandInPrivate::FindSpelling(Content.Folders, Parts[Index], Name))
			{
				return false;
			}
			Folder += Name + TEXT("/");
			continue;
		}
		for (const FString& File : Content.Files)
		{
			if (FPaths::GetBaseFilename(File) == Parts[Index] && DescribeAssetFile(Folder + File, OutFile))
			{
				return true;
			}
		}
	}
	return false;
}

bool DescribeAssetFile(const FString& FileName, FAssetFile& OutFile)
{
	FString FullName = FPaths::ConvertRelativePathToFull(FileName);
	FPaths::NormalizeFilename(FullName);
	const FAssetFileType* Type = StandInPrivate::FindType(FullName);
	const FMountPoint* MountPoint = StandInPrivate::FindMountPointOfFile(FullName);
	if (Type == nullptr || MountPoint == nullptr)
	{
		return false;
	}
	const FString Relative = FullName.RightChop(MountPoint->Directory.Len());
	OutFile.PackageName = MountPoint->RootPath + Relative.LeftChop(FPaths::GetExtension(Relative, true).Len());
	OutFile.FileName = FullName;
	OutFile.ClassName = Type->ClassName;
	return FPackageName::IsValidLongPackageName(OutFile.PackageName);
}
}
