// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProjectLock.h"

#include <system_error>

namespace TintmillHost
{
FProjectLock::~FProjectLock()
{
	if (Handle != -1)
	{
		UnlockFile();
	}
	if (bMadeFolder)
	{
		// Stays where something has been saved in it.
		std::error_code Error;
		std::filesystem::remove(File.parent_path(), Error);
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
