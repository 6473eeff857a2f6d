// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/UnrealTemplate.h"

// File paths with forward slashes. Folder getters return absolute paths with a trailing slash (the engine's are relative to
// the program). The engine folder is two folders above the program's, the project is set by the host.
// Left out: sandboxes, content mounting, localisation and shader folders.

/** File paths. */
class CORE_API FPaths
{
public:
	static FString EngineDir();
	static FString EngineContentDir();
	static FString EngineConfigDir();
	static FString EnginePluginsDir();
	static FString EngineSavedDir();
	/** Folder of the project file, or the engine folder while there is none. */
	static FString ProjectDir();
	static FString ProjectContentDir();
	static FString ProjectConfigDir();
	static FString ProjectSavedDir();
	static FString ProjectIntermediateDir();
	static FString ProjectPluginsDir();
	static FString ProjectLogDir();
	/** `<Saved>/Config/`: the saved configuration of all platforms. */
	static FString GeneratedConfigDir();

	/** Says whether a project file has been set. */
	static bool IsProjectFilePathSet();
	/** Absolute path of the project file, or "". */
	static FString GetProjectFilePath();
	/** Sets the project file (`.uproject`); it need not exist. Names the project after it; "" takes both away. */
	static void SetProjectFilePath(const FString& NewGameProjectFilePath);

	/** What follows the last dot of the file name, with the dot if asked for. */
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** What follows the last slash. */
	static FString GetCleanFilename(const FString& InPath);
	/** File name without extension; with its path unless that is to be removed. */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** What precedes the last slash. */
	static FString GetPath(const FString& InPath);
	/** Replaces or adds the extension; a path without one stays as it is. */
	static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);
	/** Says whether a path does not start at a root. */
	static bool IsRelative(const FString& InPath);
	/** Says whether two paths name the same place by their text. */
	static bool IsSamePath(const FString& PathA, const FString& PathB);
	/** Says whether a path lies below a folder by its text. */
	static bool IsUnderDirectory(const FString& InPath, const FString& InDirectory);

	/** Turns backslashes to slashes. */
	static void NormalizeFilename(FString& InPath);
	/** Turns backslashes to slashes and drops a trailing one. */
	static void NormalizeDirectoryName(FString& InPath);
	/** Takes out `dir/..` and `.`; returns false (path unchanged) when `..` leads above the root. */
	static bool CollapseRelativeDirectories(FString& InPath);
	/** Takes out doubled slashes. */
	static void RemoveDuplicateSlashes(FString& InPath);

	/** Makes a path absolute, relative ones being relative to the program's folder. */
	static FString ConvertRelativePathToFull(const FString& InPath);
	/** Makes a path absolute against a base. */
	static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);
	/** Makes a path relative to the folder of another; false (path unchanged) when they share no root. */
	static bool MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo);

	/** Joins pieces (strings or literals) with exactly one slash between; empty pieces are skipped. */
	template <typename... PathTypes>
	FORCEINLINE static FString Combine(PathTypes&&... InPaths)
	{
		const TCHAR* Paths[] = {GetTCharPtr(Forward<PathTypes>(InPaths))...};
		FString Out;
		CombineInternal(Out, Paths, int32(sizeof(Paths) / sizeof(Paths[0])));
		return Out;
	}

private:
	static void CombineInternal(FString& OutPath, const TCHAR** Paths, int32 NumPaths);
	FORCEINLINE static const TCHAR* GetTCharPtr(const TCHAR* Ptr) { return Ptr; }
	FORCEINLINE static const TCHAR* GetTCharPtr(const FString& Str) { return *Str; }
};
