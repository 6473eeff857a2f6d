// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProjectLock.h"

#include <system_error>

namespace TintmillHost
{
namespace
{
/** Removes a folder and those in it as far as there are no files in them. */
void RemoveEmptyFolders(const std::filesystem::path& Folder)
{
	std::error_code Error;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Folder, Error))
	{
		std::error_code EntryError;
		if (Entry.is_directory(EntryError) && !Entry.is_symlink(EntryError))
		{
			RemoveEmptyFolders(Entry.path());
		}
	}
	// Fails where a file is left.
	std::filesystem::remove(Folder, Error);
}
}

FProjectLock::~FProjectLock()
{
	if (Handle != -1)
	{
		UnlockFile();
	}
	if (bMadeFolder)
	{
		RemoveEmptyFolders(File.parent_path());
	}
}

EProjectLock FProjectLock::Take(const std::filesystem::path& ProjectFolder, std::string& OutReason)
{
	const std::filesystem::path Folder = ProjectFolder / "Saved";
	std::error_code Error;
	bMadeFolder = std::filesystem::create_directory(Folder, Error);
	if (Error && !std::filesystem::is_directory(Folder))
	{
		OutReason = Error.message();
		return EProjectLock::NotWritable;
	}
	File = Folder / "TintmillEditor.lock";
	return LockFile(File, OutReason);
}
}
