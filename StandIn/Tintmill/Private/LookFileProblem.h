// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// Why a look file cannot be used. Everything named LookFile* needs the standard library alone: it runs before any
// library sees a file that came from outside.

namespace LookFile
{
/** One reason why a look file is refused; Line counts from 1, and 0 means the file as a whole. */
struct FProblem
{
	/** Line of the file, counted as a text editor counts. */
	std::int64_t Line = 0;

	/** What is wrong, as the rest of a sentence, without a full stop. */
	std::string Reason;
};

/** Fills the problem and returns false, so that a check can end with it. */
bool Refuse(FProblem& OutProblem, std::int64_t Line, std::string Reason);

/** The word in quotes, shortened to 24 bytes, unprintable bytes as question marks. */
std::string Quoted(std::string_view Word);

/** "Teal.cube(17): reason", or "Teal.cube: reason" when the problem has no line; UTF-8. */
std::string Sentence(const std::filesystem::path& Path, const FProblem& Problem);
}
