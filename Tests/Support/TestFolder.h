// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Support/Text.h"
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

/** A folder of a test's own, empty at first and deleted with all it holds at the end; its names go through engine functions. */
class FTestFolder
{
public:
	FTestFolder()
	{
		std::random_device Random;
		do
		{
			Folder = std::filesystem::temp_directory_path() / ("tintmill-test-" + std::to_string(Random()));
		} while (!std::filesystem::create_directory(Folder));
	}

	~FTestFolder()
	{
		std::error_code Error;
		std::filesystem::remove_all(Folder, Error);
	}

	FTestFolder(const FTestFolder&) = delete;
	FTestFolder& operator=(const FTestFolder&) = delete;

	/** Full name of something in the folder, "" for the folder itself; with forward slashes. */
	FString Path(const std::string& Leaf = "") const
	{
		const std::string Full = Leaf.empty() ? Folder.generic_string() : NativePath(Leaf).generic_string();
		return FString(UTF8_TO_TCHAR(Full.c_str()));
	}

	/** The same for the C++ library. */
	std::filesystem::path NativePath(const std::string& Leaf) const
	{
		// Names in tests are UTF-8, also where the system has another encoding for narrow text.
		return Folder / std::filesystem::path(std::u8string(Leaf.begin(), Leaf.end()));
	}

	/** Writes a file's bytes, making folders on the way. */
	void Write(const std::string& Leaf, const std::string& Bytes) const
	{
		std::filesystem::create_directories(NativePath(Leaf).parent_path());
		std::ofstream(NativePath(Leaf), std::ios::binary) << Bytes;
	}

	/** Reads a file's bytes; empty when there is none. */
	std::string Read(const std::string& Leaf) const
	{
		std::ifstream File(NativePath(Leaf), std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>());
	}

	/** Names of what lies in the folder or one below it, sorted. */
	std::vector<std::string> List(const std::string& Leaf = "") const
	{
		std::vector<std::string> Names;
		for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(NativePath(Leaf)))
		{
			Names.push_back(Entry.path().filename().string());
		}
		std::sort(Names.begin(), Names.end());
		return Names;
	}

private:
	std::filesystem::path Folder;
};
