// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>

/** Has a file or folder changed last a number of hours ago; the C++ library cannot do that to folders on every system. */
void SetChangedHoursAgo(const std::filesystem::path& Path, int Hours);
