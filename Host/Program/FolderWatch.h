// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

// Tells what changes below a folder. Where the system reports changes nothing is looked at until it does; elsewhere the folders'
// stamps are looked at once a second, which shows files that come and go but not those that are written over.

namespace TintmillHost
{
/** What may have changed below a folder. */
struct FFolderChanges
{
	/** Files that came, went or were written, by full name; some may be named twice or not have changed after all. */
	std::vector<std::filesystem::path> Files;

	/** Anything may have changed: folders came or went, or more happened than was kept. */
	bool bEverything = false;
};

/** Whether a folder below the watched one is of no interest. */
using FFolderFilter = std::function<bool(const std::filesystem::path& Folder)>;

/** Watches a folder and all below it. */
class IFolderWatch
{
public:
	virtual ~IFolderWatch() = default;

	/** What may have changed since the last call; Seconds have passed since then. */
	virtual FFolderChanges Take(double Seconds) = 0;

	/** Whether files that are written over are told of. */
	virtual bool TellsOfWrites() const = 0;
};

/** The best watch that the system has for a folder, which need not exist. */
std::unique_ptr<IFolderWatch> WatchFolder(const std::filesystem::path& Folder, const FFolderFilter& IsLeftOut);

/** The folders at and below one that are not left out, links to folders followed once; bOutHasLinks tells of links to anything. */
std::vector<std::filesystem::path> ListFolders(const std::filesystem::path& Folder, const FFolderFilter& IsLeftOut, bool& bOutHasLinks);
}
