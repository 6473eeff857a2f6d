// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileProblem.h"

#include <cstdint>
#include <string>
#include <string_view>

// Numbers of look files, read to the last character and without regard to the machine's language.

namespace LookFile
{
/** Reads a finite decimal number; false with the reason when any character of the word does not belong to it. */
bool ParseNumber(std::string_view Word, float& OutValue, std::string& OutReason);

/** Reads a decimal integer within the two bounds; false with the reason if not. */
bool ParseInteger(std::string_view Word, std::int64_t Lowest, std::int64_t Highest, std::int64_t& OutValue, std::string& OutReason);

/** Appends the shortest decimal text that reads back as the same number. */
void AppendNumber(std::string& InOutText, float Value);
}
