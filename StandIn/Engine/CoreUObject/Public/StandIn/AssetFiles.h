// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Function.h"
#include "UObject/NameTypes.h"

// Not in the engine: where assets come from. A long package name below a mount point means a file with a registered
// extension; loading it makes the package and one object of the package's short name. All of it works before the object
// system starts and is kept over its tear-down. Game thread only.
// Files and folders may have names that assets may not have, such as "Film stock (v2).cube": a run of such characters counts as
// one underscore, at either end as nothing, so that this is the asset Film_stock_v2. A file that has the name as it is comes first.
// Files and folders whose names start with a dot are left out.

class UObject;

namespace StandIn
{
/** A kind of file that holds one asset. */
struct FAssetFileType
{
	/** Extension without dot; its case does not matter. */
	FString Extension;
	/** Name of the asset's class without prefix. */
	FName ClassName;
	/** Fills a new asset from its file; may be unset. */
	TFunction<void(UObject* Asset, const FString& FileName)> Load;
	/** Writes the file that a new asset starts with, whole or not at all; false with a few words why. Unset for none. */
	TFunction<bool(const FString& FileName, FString& OutReason)> WriteNew;
	/** Whether such a file is passed over without a word where one of another kind has its name: a picture beside what it shows. */
	bool bYields = false;
};

/** A folder whose files are assets. */
struct FMountPoint
{
	/** Start of the package names, with slashes at both ends: "/Game/". */
	FString RootPath;
	/** Absolute folder with a slash at its end. */
	FString Directory;
	/** Folders below it that hold no assets, absolute, with a slash at their ends. */
	TArray<FString> LeftOut;
};

/** A file that holds an asset. */
struct FAssetFile
{
	/** `/Game/Dir/Pkg` in the spelling of the file. */
	FString PackageName;
	/** Absolute file name. */
	FString FileName;
	FName ClassName;
};

/** Adds a kind of file; replaces the one with its extension. */
COREUOBJECT_API void RegisterAssetFileType(const FAssetFileType& Type);
/** Takes a kind of file away; assets that are loaded stay. */
COREUOBJECT_API void UnregisterAssetFileType(const FString& Extension);
COREUOBJECT_API const TArray<FAssetFileType>& GetAssetFileTypes();

/** Adds a mount point, some folders below it left out; replaces the one of the same root. */
COREUOBJECT_API void RegisterMountPoint(
	const FString& RootPath, const FString& Directory, const TArray<FString>& LeftOut = TArray<FString>());
COREUOBJECT_API void UnregisterMountPoint(const FString& RootPath);
COREUOBJECT_API const TArray<FMountPoint>& GetMountPoints();

/** The name that a file's or folder's name, without extension, gives an asset or its folder; "_" if nothing is left of it. */
COREUOBJECT_API FString MakeAssetName(const FString& FileBaseName);
/** Finds the folder of a long package path such as "/Game/Looks", in any spelling of case; false when there is none. */
COREUOBJECT_API bool FindAssetFolder(const FString& LongPackagePath, FString& OutDirectory);
/** Whether a folder, or the one it lies in, is left out. */
COREUOBJECT_API bool IsLeftOutOfAssets(const FString& Directory);
/** Finds the file of a long package name, in any spelling of case; false when there is none. */
COREUOBJECT_API bool FindAssetFile(const FString& LongPackageName, FAssetFile& OutFile);
/** The asset that a file holds by its place and extension; false for a file that is none. */
COREUOBJECT_API bool DescribeAssetFile(const FString& FileName, FAssetFile& OutFile);

/** What a scan met beside assets. */
struct FAssetScanReport
{
	/** Full names of the folders that were met, with a slash at the end. */
	TArray<FString> Folders;
	/** Folders that could not be read. */
	TArray<FString> UnreadableFolders;
	/** Files with an asset's extension that give no package name of their own, such as two that differ in case only. */
	TArray<FString> SkippedFiles;
};

/**
 * Lists the asset files below a folder in the order of their names, the folder's own before those of its folders. Symbolic
 * links to folders are followed once a folder; folders that cannot be read are reported and skipped. Progress (may be
 * unset) gets the number of files met so far and ends the scan by returning false.
 */
COREUOBJECT_API void ScanAssetFiles(const FString& Directory, bool bRecursive, TArray<FAssetFile>& OutFiles, FAssetScanReport& OutReport,
	const TFunction<bool(int32 NumFiles)>& Progress = TFunction<bool(int32)>());
}
