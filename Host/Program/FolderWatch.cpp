// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/FolderWatch.h"

#include <set>
#include <system_error>

namespace TintmillHost
{
namespace
{
struct FListing
{
	const FFolderFilter& IsLeftOut;
	std::set<std::filesystem::path> Seen;
	std::vector<std::filesystem::path> Folders;
	bool bHasLinks = false;

	void Add(const std::filesystem::path& Folder)
	{
		std::error_code Error;
		const std::filesystem::path Real = std::filesystem::canonical(Folder, Error);
		if (Error || !Seen.insert(Real).second)
		{
			return;
		}
		Folders.push_back(Folder);
		for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
		{
			std::error_code EntryError;
			bHasLinks |= It->is_symlink(EntryError);
			if (It->is_directory(EntryError) && !(IsLeftOut && IsLeftOut(It->path())))
			{
				Add(It->path());
			}
		}
	}
};
}

std::vector<std::filesystem::path> ListFolders(const std::filesystem::path& Folder, const FFolderFilter& IsLeftOut, bool& bOutHasLinks)
{
	FListing Listing{IsLeftOut, {}, {}};
	Listing.Add(Folder);
	bOutHasLinks = Listing.bHasLinks;
	return Listing.Folders;
}
}
