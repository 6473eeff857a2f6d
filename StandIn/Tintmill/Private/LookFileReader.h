// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileProblem.h"

#include <cstdint>
#include <filesystem>
#include <string>

// Brings a look file into memory, never more than the limit, and never waits for a pipe or a device.

namespace LookFile
{
/** The largest look file that is read, in bytes (64 MiB). */
constexpr std::uintmax_t MaxFileBytes = 64ull * 1024 * 1024;

/** Reads the whole file, which has to be a regular, non-empty file of at most MaxFileBytes; false with the problem if not. */
bool ReadWholeFile(const std::filesystem::path& Path, std::string& OutBytes, FProblem& OutProblem);
}
