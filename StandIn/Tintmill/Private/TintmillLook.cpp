// Copyright The Tintmill authors. All rights reserved.

#include "TintmillLook.h"

#include <system_error>

FTintmillFileStamp FTintmillFileStamp::Of(const std::filesystem::path& Path)
{
	FTintmillFileStamp Stamp;
	std::error_code Error;
	Stamp.bExists = std::filesystem::is_regular_file(Path, Error);
	if (Stamp.bExists)
	{
		Stamp.Size = std::filesystem::file_size(Path, Error);
		Stamp.Time = std::filesystem::last_write_time(Path, Error);
	}
	return Stamp;
}
