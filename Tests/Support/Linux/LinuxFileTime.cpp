// Copyright The Tintmill authors. All rights reserved.

#include "Support/FileTime.h"

#include <chrono>

void SetChangedHoursAgo(const std::filesystem::path& Path, int Hours)
{
	std::filesystem::last_write_time(Path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(Hours));
}
