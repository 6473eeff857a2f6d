// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Program/FolderWatch.h"

#include <map>
#include <set>

// The watch for systems that report nothing: the stamps of the folders, once a second.

namespace TintmillHost
{
/** Looks at the folders' stamps, and at the names in those that have a new one. */
class FFolderPoll : public IFolderWatch
{
public:
	FFolderPoll(std::filesystem::path InRoot, FFolderFilter InIsLeftOut);

	virtual FFolderChanges Take(double Seconds) override;
	virtual bool TellsOfWrites() const override { return false; }

private:
	struct FFolder
	{
		std::filesystem::file_time_type Stamp;
		std::set<std::filesystem::path> Files;
		std::set<std::filesystem::path> Folders;
	};

	void LookAtEverything();
	static FFolder LookAt(const std::filesystem::path& Folder);

	std::filesystem::path Root;
	FFolderFilter IsLeftOut;
	std::map<std::filesystem::path, FFolder> Folders;
	double Waited = 0.0;
};
}
