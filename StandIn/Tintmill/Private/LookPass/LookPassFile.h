// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <string>

namespace LookPass
{
/** A file that nobody else has, in a folder of its own below the system's temporary folder; both are gone at the end. */
class FLookPassFile
{
public:
	/** Writes the text to a new file with the extension (without the point). */
	FLookPassFile(const std::string& Text, const std::string& Extension);
	~FLookPassFile();
	FLookPassFile(const FLookPassFile&) = delete;
	FLookPassFile& operator=(const FLookPassFile&) = delete;

	/** False when the file could not be written. */
	bool IsWritten() const;

	/** Path of the file. */
	const std::filesystem::path& GetPath() const;

private:
	std::filesystem::path Folder;
	std::filesystem::path File;
	bool bWritten = false;
};
}
