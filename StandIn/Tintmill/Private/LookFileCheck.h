// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileCube.h"
#include "LookFileProblem.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

// The gate between a file from outside and the libraries that read looks.

namespace LookFile
{
/** A look file that passed every check, as the copy that may be handed on. */
struct FCheckedFile
{
	/** The text with its harmless oddities repaired. */
	std::string Text;

	/** The file's extension in lower case, without the point. */
	std::string Extension;

	/** Tells two contents apart, whatever the file is called. */
	std::uint64_t ContentHash = 0;

	/** The tables, when the file is a .cube; both sizes are 0 otherwise. */
	FCube Cube;
};

/** The extensions that can be read, in lower case, without the point, the commonest first. */
const std::vector<std::string>& KnownExtensions();

/** Checks a text already in memory as if it were a file with the extension; false with line and reason if it is refused. */
bool CheckText(std::string Text, const std::string& Extension, FCheckedFile& OutFile, FProblem& OutProblem);

/** Reads and checks a file; false with line and reason if it is refused. */
bool CheckFile(const std::filesystem::path& Path, FCheckedFile& OutFile, FProblem& OutProblem);
}
