// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

// The project's settings as a tour found them.

namespace TintmillHost
{
/** Remembers a file's bytes and puts them back. */
class FKeptSettings
{
public:
	/** Remembers the file as it is now, or that there is none. Does nothing if a file is remembered already. */
	void Keep(const std::filesystem::path& InFile);

	/** Makes the file again what it was, whole or not at all. Returns an empty string, or one sentence why it could not. */
	std::string PutBack() const;

	/** Writes what is remembered, for another run. */
	void Save(std::ostream& Stream) const;

	/** Reads what Save wrote. */
	void Load(std::istream& Stream);

private:
	std::filesystem::path File;
	bool bKept = false;

	/** Unset if there was no file. */
	std::optional<std::string> Bytes;
};
}
