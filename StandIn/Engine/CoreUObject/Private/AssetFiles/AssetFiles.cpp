// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetFiles.h"
#include "AssetFiles/NativeFolder.h"
#include "Misc/CString.h"
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

bool IsHidden(const FString& Name)
{
	return Name.StartsWith(TEXT("."));
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

// The name among those of a folder that is a wanted one: in any spelling of case, the exact one first; else by its asset name.
bool FindName(const TArray<FString>& Names, const FString& Wanted, bool bFiles, FString& OutName)
{
	const auto IsWanted = [bFiles](const FString& Name) { return !IsHidden(Name) && (!bFiles || FindType(Name) != nullptr); };
	const auto BaseName = [bFiles](const FString& Name) { return bFiles ? FPaths::GetBaseFilename(Name) : Name; };
	const auto Yields = [bFiles](const FString& Name) { return bFiles && FindType(Name)->bYields; };
	const FString* Found = nullptr;
	for (const FString& Name : Names)
	{
		const bool bSame = Name.StartsWith(Wanted) && BaseName(Name) == Wanted && IsWanted(Name);
		if (bSame && (Found == nullptr || (!bFiles && Name.Equals(Wanted)) || (Yields(*Found) && !Yields(Name))))
		{
			Found = &Name;
		}
	}
	for (int32 Index = 0; (Found == nullptr || Yields(*Found)) && Index < Names.Num(); ++Index)
	{
		const FString& Name = Names[Index];
		if (IsWanted(Name) && (Found == nullptr || !Yields(Name)) && StandIn::MakeAssetName(BaseName(Name)) == Wanted)
		{
			Found = &Name;
		}
	}
	if (Found != nullptr)
	{
		OutName = *Found;
	}
	return Found != nullptr;
}

bool IsInvalid(TCHAR Character)
{
	// Letters and digits are most of what names have.
	const bool bWord = (Character >= TEXT('a') && Character <= TEXT('z')) || (Character >= TEXT('A') && Character <= TEXT('Z'))
		|| (Character >= TEXT('0') && Character <= TEXT('9')) || Character == TEXT('_') || Character > 127;
	return !bWord
		&& (FCString::Strchr(INVALID_LONGPACKAGE_CHARACTERS, Character) != nullptr
			|| FCString::Strchr(INVALID_OBJECTNAME_CHARACTERS, Character) != nullptr);
}

// The file whose name is an asset's to the letter, without reading the whole folder.
bool FindExactFile(const FString& Folder, const FString& AssetName, FString& OutName)
{
	OutName.Reset();
	bool bYields = false;
	for (const StandIn::FAssetFileType& Type : GetAssetFileRegistry().Types)
	{
		const FString Name = AssetName + TEXT(".") + Type.Extension;
		const bool bBetter = OutName.IsEmpty() || (Type.bYields == bYields ? Name.Compare(OutName) < 0 : bYields);
		// Where the system takes any spelling of a name, only the listing knows the right one. Of several, the first by name is it.
		if (!PLATFORM_WINDOWS && bBetter && FPaths::FileExists(Folder + Name))
		{
			OutName = Name;
			bYields = Type.bYields;
		}
	}
	// A file that yields may do so to one whose name has to be made up.
	return !OutName.IsEmpty() && !bYields;
}

// The folder of the first folders of a package name.
bool FindFolder(const StandIn::FMountPoint& MountPoint, const TArray<FString>& Parts, int32 NumParts, FString& OutFolder)
{
	OutFolder = MountPoint.Directory;
	for (int32 Index = 0; Index < NumParts; ++Index)
	{
		FString Name = Parts[Index];
		// Where the system takes any spelling of a name, only the listing knows the one that was given.
		if (PLATFORM_WINDOWS || !FPaths::DirectoryExists(OutFolder + Name))
		{
			FFolderContent Content;
			ListFolder(OutFolder, Content);
			if (!FindName(Content.Folders, Parts[Index], false, Name))
			{
				return false;
			}
		}
		OutFolder += Name + TEXT("/");
	}
	return true;
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

void RegisterMountPoint(const FString& RootPath, const FString& Directory, const TArray<FString>& LeftOut)
{
	checkf(RootPath.StartsWith(TEXT("/")) && RootPath.EndsWith(TEXT("/")) && RootPath.Len() > 2,
		TEXT("A mount point's root has slashes at both ends: %s"), *RootPath);
	UnregisterMountPoint(RootPath);
	FMountPoint MountPoint;
	MountPoint.RootPath = RootPath;
	MountPoint.Directory = StandInPrivate::MakeFolderName(Directory);
	for (const FString& Folder : LeftOut)
	{
		MountPoint.LeftOut.Add(StandInPrivate::MakeFolderName(Folder));
	}
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

FString MakeAssetName(const FString& FileBaseName)
{
	FString Name;
	bool bGap = false;
	for (int32 Index = 0; Index < FileBaseName.Len(); ++Index)
	{
		const TCHAR Character = FileBaseName[Index];
		if (StandInPrivate::IsInvalid(Character))
		{
			bGap = Name.Len() > 0;
			continue;
		}
		if (bGap)
		{
			Name += TEXT("_");
		}
		bGap = false;
		Name.AppendChar(Character);
	}
	return Name.IsEmpty() && FileBaseName.Len() > 0 ? FString(TEXT("_")) : Name;
}

bool FindAssetFolder(const FString& LongPackagePath, FString& OutDirectory)
{
	const FString Path = LongPackagePath.EndsWith(TEXT("/")) ? LongPackagePath : LongPackagePath + TEXT("/");
	const FMountPoint* MountPoint = StandInPrivate::FindMountPoint(Path);
	if (MountPoint == nullptr)
	{
		return false;
	}
	TArray<FString> Parts;
	Path.RightChop(MountPoint->RootPath.Len()).ParseIntoArray(Parts, TEXT("/"));
	FString Folder;
	if (!StandInPrivate::FindFolder(*MountPoint, Parts, Parts.Num(), Folder))
	{
		return false;
	}
	OutDirectory = Folder;
	return true;
}

bool IsLeftOutOfAssets(const FString& Directory)
{
	const FString Folder = StandInPrivate::MakeFolderName(Directory);
	for (const FMountPoint& MountPoint : GetMountPoints())
	{
		const bool bBelow = Folder.StartsWith(MountPoint.Directory, ESearchCase::CaseSensitive);
		if (bBelow && Folder.RightChop(MountPoint.Directory.Len() - 1).Contains(TEXT("/.")))
		{
			return true;
		}
		for (const FString& LeftOut : MountPoint.LeftOut)
		{
			if (Folder.StartsWith(LeftOut, ESearchCase::CaseSensitive))
			{
				return true;
			}
		}
	}
	return false;
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
	FString Folder;
	if (Parts.Num() == 0 || !StandInPrivate::FindFolder(*MountPoint, Parts, Parts.Num() - 1, Folder))
	{
		return false;
	}
	FString Name;
	if (StandInPrivate::FindExactFile(Folder, Parts.Last(), Name))
	{
		return DescribeAssetFile(Folder + Name, OutFile);
	}
	StandInPrivate::FFolderContent Content;
	StandInPrivate::ListFolder(Folder, Content);
	return StandInPrivate::FindName(Content.Files, Parts.Last(), true, Name) && DescribeAssetFile(Folder + Name, OutFile);
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
	TArray<FString> Parts;
	const FString Relative = FullName.RightChop(MountPoint->Directory.Len());
	Relative.LeftChop(FPaths::GetExtension(Relative, true).Len()).ParseIntoArray(Parts, TEXT("/"));
	OutFile.PackageName = MountPoint->RootPath.LeftChop(1);
	for (const FString& Part : Parts)
	{
		OutFile.PackageName += TEXT("/") + MakeAssetName(Part);
	}
	OutFile.FileName = FullName;
	OutFile.ClassName = Type->ClassName;
	return FPackageName::IsValidLongPackageName(OutFile.PackageName);
}
}
