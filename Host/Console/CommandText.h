// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <string_view>
#include <vector>

// Splits what people type into commands and words.

namespace TintmillHost
{
/** Splits at semicolons and line ends that stand outside quotation marks; leaves out empty commands and comments (# to the line's end). */
std::vector<std::string> SplitCommands(std::string_view Text);

/** Splits one command at blanks that stand outside quotation marks ("" or ''); the marks are dropped. */
std::vector<std::string> SplitWords(std::string_view Command);
}
