// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// One project, one editor that saves: a lock on a file in the project's folder Saved. The system takes the lock away from a
// process that ends in whatever way, so a crash blocks nobody.

namespace TintmillHost
{
/** What came of the wish to have a project to oneself. */
enum class EProjectLock : uint8_t
{
	/** It is ours. */
	Held,
	/** Another process has it. */
	HeldByOther,
	/** Nothing can be written there. */
	NotWritable
};

/** Holds a project while it lives. */
class FProjectLock
{
public:
	FProjectLock() = default;

	/** Lets the project go; its folder is as it was before, unless something was saved. */
	~FProjectLock();

	FProjectLock(const FProjectLock&) = delete;
	FProjectLock& operator=(const FProjectLock&) = delete;

	/** Takes a project, at most once. With NotWritable, OutReason is a few words such as "Read-only file system". */
	EProjectLock Take(const std::filesystem::path& ProjectFolder, std::string& OutReason);

private:
	EProjectLock LockFile(const std::filesystem::path& NewFile, std::string& OutReason);
	void UnlockFile();

	std::filesystem::path File;
	bool bMadeFolder = false;
	std::intptr_t Handle = -1;
};
}
