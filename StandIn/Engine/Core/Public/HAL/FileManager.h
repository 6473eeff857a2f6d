// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

// Files and folders. Left out: archives (CreateFileReader, CreateFileWriter), time stamps and the platform-file stack.
// File names are UTF-16 and become UTF-8 on Linux; a name that is not valid UTF-16 names no file.

/** Files and folders; `IFileManager::Get()` is the one instance. */
class CORE_API IFileManager
{
public:
	/** The one file manager. */
	static IFileManager& Get();

	/** Says whether a file (not a folder) of this name exists. */
	virtual bool FileExists(const TCHAR* Filename) = 0;

	/** Says whether a folder of this name exists. */
	virtual bool DirectoryExists(const TCHAR* InDirectory) = 0;

	/** Size in bytes, or -1 when there is no such file. */
	virtual int64 FileSize(const TCHAR* Filename) = 0;

	/** Says whether the file exists and nobody may write it. */
	virtual bool IsReadOnly(const TCHAR* Filename) = 0;

	/** Deletes a file; a missing file is a failure only when it is required. */
	virtual bool Delete(const TCHAR* Filename, bool bRequireExists = false, bool bEvenReadOnly = false, bool bQuiet = false) = 0;

	/** Moves a file; an existing target is replaced if asked for. */
	virtual bool Move(const TCHAR* Dest, const TCHAR* Src, bool bReplace = true, bool bEvenIfReadOnly = false, bool bAttributes = false,
		bool bDoNotRetryOrError = false) = 0;

	/** Copies a file; returns 0 for success, 1 for failure. */
	virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool bReplace = true, bool bEvenIfReadOnly = false) = 0;

	/** Makes a folder, with its parents if asked for; an existing folder is a success. */
	virtual bool MakeDirectory(const TCHAR* Path, bool bTree = false) = 0;

	/** Deletes a folder, with its content if asked for; a missing folder is a failure only when it is required. */
	virtual bool DeleteDirectory(const TCHAR* Path, bool bRequireExists = false, bool bTree = false) = 0;

	/** Names (without path) of the files and folders that match a wildcard of `*` and `?` in its last part, sorted. */
	virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Wildcard, bool bFiles, bool bDirectories) = 0;

	/** Names (without path) of the files in a folder with an extension ("ini", ".ini" or null for all), sorted. */
	virtual void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension = nullptr) = 0;

	/** Full names of the files and folders below a folder that match a wildcard, sorted within each folder. */
	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles,
		bool bDirectories, bool bClearFileNames = true) = 0;

protected:
	virtual ~IFileManager() {}
};
