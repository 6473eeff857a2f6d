// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <string_view>
#include <vector>

// Splits what people type into commands and words.

namespace TintmillHost
{
/** A command and the line that it stands on, counted from 1. */
struct FNumberedCommand
{
	int Line = 0;
	std::string Text;
};

/** Splits as SplitCommands does, but at line ends alone, and says on which line each command stands. */
std::vector<FNumberedCommand> SplitLines(std::string_view Text);

/** Splits at semicolons and line ends that stand outside quotation marks; leaves out empty commands and comments (# to the line's end). A mark inside of a word, as in "pane's", is part of the word. */
std::vector<std::string> SplitCommands(std::string_view Text);

/** Splits one command at blanks that stand outside quotation marks ("" or ''); the marks are dropped. */
std::vector<std::string> SplitWords(std::string_view Command);
}
