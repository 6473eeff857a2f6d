// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace HeaderTool
{

/** An output that cannot be written; the text is one sentence for a person. */
class FOutputError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** Reads a whole file; returns false when it cannot be read. */
bool ReadFile(const std::filesystem::path& File, std::string& OutText);

/** Writes a file whole or not at all, and only if its content changes; returns whether it wrote; throws FOutputError. */
bool WriteFileIfChanged(const std::filesystem::path& File, const std::string& Text);

}
