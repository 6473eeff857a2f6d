// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileProblem.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Plain text as look files use it: lines, words, and the limits that keep readers with fixed buffers out of danger.

namespace LookFile
{
/** The longest line of a table file, in bytes. */
constexpr std::size_t MaxLineBytes = 4096;

/** The longest word that is handed to a library, in bytes. */
constexpr std::size_t MaxWordBytes = 63;

/** Walks the lines of a text whose line ends are "\n", counting them from 1. */
class FLines
{
public:
	/** Starts before the first line; the text has to outlive this. */
	explicit FLines(std::string_view InText);

	/** Moves to the next line; false at the end. */
	bool Next();

	/** The current line without blanks at either end. */
	std::string_view Get() const;

	/** Number of the current line, from 1. */
	std::int64_t Number() const;

private:
	std::string_view Rest;
	std::string_view Current;
	std::int64_t Count = 0;
};

/** The words of a line, parted by blanks and tabs; at most MaxWords are returned. */
std::vector<std::string_view> SplitWords(std::string_view Line, std::size_t MaxWords = 64);

/** Compares two words of ASCII without regard to case. */
bool SameWord(std::string_view A, std::string_view B);

/** Drops a UTF-8 byte-order mark, makes every line end "\n", and refuses what is not text. */
bool NormalizeText(std::string& InOutText, FProblem& OutProblem);

/** Refuses the first line longer than MaxLineBytes. */
bool CheckLineLengths(std::string_view Text, FProblem& OutProblem);

/** Refuses the first word longer than MaxWordBytes. */
bool CheckWordLengths(std::string_view Text, FProblem& OutProblem);
}
