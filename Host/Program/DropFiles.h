// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Look files that a person drops onto the editor are copied into the project, each whole or not at all.

namespace TintmillHost
{
/** What came of files that were dropped. */
struct FDropResult
{
	/** The files that are new in the project, by full name. */
	std::vector<std::filesystem::path> Added;

	/** One sentence each for what could not be added. */
	std::vector<std::string> Problems;
};

/** Copies look files, and all look files of folders, into a folder of the project, under names that assets may have and that are free. */
FDropResult AddDroppedFiles(const std::vector<std::filesystem::path>& FilesAndFolders, const std::filesystem::path& TargetFolder);

/** The same into the content folder, with names in UTF-8. Returns "", or one sentence on what could not be added, as a notice does too. */
std::string AddDroppedFiles(const std::vector<std::string>& FilesAndFolders);
}
