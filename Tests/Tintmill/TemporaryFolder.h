// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace TintmillTest
{
/** An empty folder of its own for one test; gone with everything in it at the end. */
class FTemporaryFolder
{
public:
	FTemporaryFolder()
	{
		std::random_device Random;
		Folder = std::filesystem::path(testing::TempDir()) / ("tintmill-test-" + std::to_string(Random()) + std::to_string(Random()));
		std::filesystem::create_directories(Folder);
	}

	~FTemporaryFolder()
	{
		std::error_code Error;
		std::filesystem::remove_all(Folder, Error);
	}

	FTemporaryFolder(const FTemporaryFolder&) = delete;
	FTemporaryFolder& operator=(const FTemporaryFolder&) = delete;

	/** Path of something in the folder. */
	std::filesystem::path At(const std::string& Name) const { return Folder / Name; }

	/** Writes a file and returns its path. */
	std::filesystem::path Write(const std::string& Name, std::string_view Text) const
	{
		std::ofstream Stream(At(Name), std::ios::binary);
		Stream.write(Text.data(), static_cast<std::streamsize>(Text.size()));
		return At(Name);
	}

private:
	std::filesystem::path Folder;
};
}
