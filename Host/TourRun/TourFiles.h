// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

// Files that a tour puts into the project for a while.

namespace TintmillHost
{
/** Writes files that were not there before, and takes away all of them in the end. It never touches a file of the user's. */
class FTourFiles
{
public:
	FTourFiles() = default;

	/** Takes the files away. */
	~FTourFiles() { RemoveAll(); }

	FTourFiles(const FTourFiles&) = delete;
	FTourFiles& operator=(const FTourFiles&) = delete;

	/** Writes a file below a folder, or writes one anew that Write has made. Throws FCommandError when it cannot or the file is not ours. */
	void Write(const std::filesystem::path& Folder, const std::string& Name, const std::string& Bytes);

	/** Takes a file for one of ours that somebody else is about to make. Throws FCommandError when it is there already. */
	void Expect(const std::filesystem::path& Folder, const std::string& Name);

	/** Takes away a file that Write has made. Throws FCommandError when it has not. */
	void Remove(const std::filesystem::path& Folder, const std::string& Name);

	/** Takes all of them away, and the folders that were made for them. */
	void RemoveAll();

	/** Leaves the files to another run, which takes them away. */
	void HandOver(std::ostream& Stream);

	/** Takes the files that another run left. */
	void TakeOver(std::istream& Stream);

private:
	/** Files, and after them the folders that were made for them, in the order in which they are to be taken away. */
	std::vector<std::filesystem::path> Files;
	std::vector<std::filesystem::path> Folders;
};
}
