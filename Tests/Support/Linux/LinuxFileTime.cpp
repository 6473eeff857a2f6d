// Copyright The Tintmill authors. All rights reserved.

#include "Support/FileTime.h"

#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

void SetChangedHoursAgo(const std::filesystem::path& Path, int Hours)
{
	std::filesystem::last_write_time(Path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(Hours));
}

void SetChangedAt(const std::filesystem::path& Path, std::int64_t Ticks)
{
	constexpr std::int64_t Year2020 = 1577836800;
	struct timespec Times[2] = {};
	Times[0].tv_nsec = UTIME_OMIT;
	Times[1].tv_sec = Year2020 + Ticks / 10000000;
	Times[1].tv_nsec = Ticks % 10000000 * 100;
	EXPECT_EQ(0, utimensat(AT_FDCWD, Path.c_str(), Times, 0)) << Path;
}
