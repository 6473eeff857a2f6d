// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cstdint>
#include <filesystem>

/** Has a file or folder changed last a number of hours ago; the C++ library cannot do that to folders on every system. */
void SetChangedHoursAgo(const std::filesystem::path& Path, int Hours);

/** Has a file changed last a number of tenths of a microsecond after the start of the year 2020: as finely as Windows counts. */
void SetChangedAt(const std::filesystem::path& Path, std::int64_t Ticks);
