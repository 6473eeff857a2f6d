// Copyright The Tintmill authors. All rights reserved.

#include "TintmillLook.h"

#include <sys/stat.h>

FTintmillFileStamp FTintmillFileStamp::Of(const std::filesystem::path& Path)
{
	FTintmillFileStamp Stamp;
	struct stat File;
	if (stat(Path.c_str(), &File) == 0 && S_ISREG(File.st_mode))
	{
		Stamp.bExists = true;
		Stamp.Size = static_cast<std::uint64_t>(File.st_size);
		Stamp.Time = static_cast<std::int64_t>(File.st_mtim.tv_sec) * 1000000000 + File.st_mtim.tv_nsec;
	}
	return Stamp;
}
