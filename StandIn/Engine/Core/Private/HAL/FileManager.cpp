// Copyright The Tintmill authors. All rights reserved.

#include "HAL/FileManager.h"

#include "HAL/NativePath.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace
{
namespace fs = std::filesystem;

/** Matches a name against `*` and `?`, ignoring the case of ASCII letters. */
bool MatchesWildcard(const TCHAR* Name, const TCHAR* Wildcard)
{
	const auto Lower = [](TCHAR Char) { return Char >= 'A' && Char <= 'Z' ? TCHAR(Char + 32) : Char; };
	const TCHAR* Star = nullptr;
	const TCHAR* Retry = nullptr;
	while (*Name)
	{
		if (*Wildcard == '*')
		{
			Star = Wildcard++;
			Retry = Name;
		}
		else if (*Wildcard == '?' || (*Wildcard && Lower(*Wildcard) == Lower(*Name)))
		{
			++Wildcard;
			++Name;
		}
		else if (Star)
		{
			Wildcard = Star + 1;
			Name = ++Retry;
		}
		else
		{
			return false;
		}
	}
	while (*Wildcard == '*')
	{
		++Wildcard;
	}
	return *Wildcard == 0;
}

bool IsReadOnlyStatus(const fs::file_status& Status)
{
	const fs::perms AnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
	return (Status.permissions() & AnyWrite) == fs::perms::none;
}

/** The entries of a folder, sorted by name; empty when it cannot be listed. */
std::vector<fs::directory_entry> ListFolder(const fs::path& Folder)
{
	std::vector<fs::directory_entry> Entries;
	std::error_code Error;
	for (fs::directory_iterator It(Folder, fs::directory_options::skip_permission_denied, Error), End; !Error && It != End;
		 It.increment(Error))
	{
		Entries.push_back(*It);
	}
	std::sort(
		Entries.begin(), Entries.end(), [](const fs::directory_entry& A, const fs::directory_entry& B) { return A.path() < B.path(); });
	return Entries;
}

class FStandInFileManager final : public IFileManager
{
public:
	virtual bool FileExists(const TCHAR* Filename) override
	{
		fs::path Path;
		std::error_code Error;
		return StandInPrivate::ToNativePath(Filename, Path) && fs::exists(Path, Error) && !fs::is_directory(Path, Error);
	}

	virtual bool DirectoryExists(const TCHAR* InDirectory) override
	{
		fs::path Path;
		std::error_code Error;
		return StandInPrivate::ToNativePath(InDirectory, Path) && fs::is_directory(Path, Error);
	}

	virtual int64 FileSize(const TCHAR* Filename) override
	{
		fs::path Path;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Filename, Path) || !fs::is_regular_file(Path, Error))
		{
			return -1;
		}
		const std::uintmax_t Size = fs::file_size(Path, Error);
		return Error ? -1 : int64(Size);
	}

	virtual bool IsReadOnly(const TCHAR* Filename) override
	{
		fs::path Path;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Filename, Path))
		{
			return false;
		}
		const fs::file_status Status = fs::status(Path, Error);
		return !Error && fs::exists(Status) && IsReadOnlyStatus(Status);
	}

	virtual bool Delete(const TCHAR* Filename, bool bRequireExists, bool bEvenReadOnly, bool bQuiet) override
	{
		(void)bQuiet;
		fs::path Path;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Filename, Path) || fs::is_directory(Path, Error))
		{
			return false;
		}
		if (!fs::exists(fs::symlink_status(Path, Error)))
		{
			return !bRequireExists;
		}
		if (!MakeWritable(Filename, Path, bEvenReadOnly))
		{
			return false;
		}
		return fs::remove(Path, Error) && !Error;
	}

	virtual bool Move(
		const TCHAR* Dest, const TCHAR* Src, bool bReplace, bool bEvenIfReadOnly, bool bAttributes, bool bDoNotRetryOrError) override
	{
		(void)bAttributes;
		(void)bDoNotRetryOrError;
		fs::path From;
		fs::path To;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Src, From) || !StandInPrivate::ToNativePath(Dest, To))
		{
			return false;
		}
		if (fs::exists(To, Error) && (!bReplace || !MakeWritable(Dest, To, bEvenIfReadOnly)))
		{
			return false;
		}
		fs::rename(From, To, Error);
		return !Error;
	}

	virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool bReplace, bool bEvenIfReadOnly) override
	{
		fs::path From;
		fs::path To;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Src, From) || !StandInPrivate::ToNativePath(Dest, To))
		{
			return 1;
		}
		if (fs::exists(To, Error) && (!bReplace || !MakeWritable(Dest, To, bEvenIfReadOnly)))
		{
			return 1;
		}
		return fs::copy_file(From, To, fs::copy_options::overwrite_existing, Error) && !Error ? 0 : 1;
	}

	virtual bool MakeDirectory(const TCHAR* Path, bool bTree) override
	{
		fs::path Folder;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Path, Folder))
		{
			return false;
		}
		if (bTree)
		{
			fs::create_directories(Folder, Error);
		}
		else
		{
			fs::create_directory(Folder, Error);
		}
		return fs::is_directory(Folder, Error);
	}

	virtual bool DeleteDirectory(const TCHAR* Path, bool bRequireExists, bool bTree) override
	{
		fs::path Folder;
		std::error_code Error;
		if (!StandInPrivate::ToNativePath(Path, Folder))
		{
			return false;
		}
		if (!fs::is_directory(Folder, Error))
		{
			return !bRequireExists;
		}
		if (bTree)
		{
			fs::remove_all(Folder, Error);
		}
		else
		{
			fs::remove(Folder, Error);
		}
		return !Error;
	}

	virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Wildcard, bool bFiles, bool bDirectories) override
	{
		const FString Pattern = FPaths::GetCleanFilename(Wildcard);
		const FString Folder = FPaths::GetPath(Wildcard);
		fs::path Path;
		if (!StandInPrivate::ToNativePath(Folder.IsEmpty() ? TEXT(".") : *Folder, Path))
		{
			return;
		}
		for (const fs::directory_entry& Entry : ListFolder(Path))
		{
			std::error_code Error;
			const FString Name = StandInPrivate::FromNativePath(Entry.path().filename());
			if ((Entry.is_directory(Error) ? bDirectories : bFiles) && MatchesWildcard(*Name, *Pattern))
			{
				FileNames.Add(Name);
			}
		}
	}

	virtual void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension) override
	{
		FString Wildcard = FPaths::Combine(Directory, TEXT("*"));
		if (FileExtension && *FileExtension)
		{
			Wildcard += *FileExtension == '.' ? FString(FileExtension) : FString(TEXT(".")) + FileExtension;
		}
		FindFiles(FoundFiles, *Wildcard, true, false);
	}

	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles,
		bool bDirectories, bool bClearFileNames) override
	{
		if (bClearFileNames)
		{
			FileNames.Empty();
		}
		fs::path Path;
		if (StandInPrivate::ToNativePath(StartDirectory, Path))
		{
			Recurse(FileNames, Path, Filename, bFiles, bDirectories);
		}
	}

private:
	static void Recurse(TArray<FString>& FileNames, const fs::path& Folder, const TCHAR* Wildcard, bool bFiles, bool bDirectories)
	{
		for (const fs::directory_entry& Entry : ListFolder(Folder))
		{
			std::error_code Error;
			const bool bIsFolder = Entry.is_directory(Error);
			const FString Name = StandInPrivate::FromNativePath(Entry.path().filename());
			if ((bIsFolder ? bDirectories : bFiles) && MatchesWildcard(*Name, Wildcard))
			{
				FileNames.Add(StandInPrivate::FromNativePath(Entry.path()));
			}
			// A link to a folder is listed but not followed, so that a loop of links ends.
			if (bIsFolder && !Entry.is_symlink(Error))
			{
				Recurse(FileNames, Entry.path(), Wildcard, bFiles, bDirectories);
			}
		}
	}

	/** Makes a read-only file writable if that is wanted; false when it stays read-only. */
	bool MakeWritable(const TCHAR* Filename, const fs::path& Path, bool bEvenReadOnly)
	{
		if (!IsReadOnly(Filename))
		{
			return true;
		}
		std::error_code Error;
		if (bEvenReadOnly)
		{
			fs::permissions(Path, fs::perms::owner_write, fs::perm_options::add, Error);
		}
		return bEvenReadOnly && !Error;
	}
};
}

IFileManager& IFileManager::Get()
{
	static FStandInFileManager* const FileManager = new FStandInFileManager();
	return *FileManager;
}
