// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/FolderPoll.h"
#include "Host/Program/FolderWatch.h"

namespace TintmillHost
{
std::unique_ptr<IFolderWatch> WatchFolder(const std::filesystem::path& Folder, const FFolderFilter& IsLeftOut)
{
	return std::make_unique<FFolderPoll>(Folder, IsLeftOut);
}
}
