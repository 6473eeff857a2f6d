// Copyright The Tintmill authors. All rights reserved.

#include "TintmillLook.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

FTintmillFileStamp FTintmillFileStamp::Of(const std::filesystem::path& Path)
{
	FTintmillFileStamp Stamp;
	WIN32_FILE_ATTRIBUTE_DATA File = {};
	if (GetFileAttributesExW(Path.c_str(), GetFileExInfoStandard, &File) && !(File.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
	{
		Stamp.bExists = true;
		Stamp.Size = static_cast<std::uint64_t>(File.nFileSizeHigh) << 32 | File.nFileSizeLow;
		// Tenths of a microsecond.
		Stamp.Time = static_cast<std::int64_t>(
			static_cast<std::uint64_t>(File.ftLastWriteTime.dwHighDateTime) << 32 | File.ftLastWriteTime.dwLowDateTime);
	}
	return Stamp;
}
