// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/FolderPoll.h"

#include <algorithm>
#include <iterator>
#include <system_error>
#include <utility>

namespace TintmillHost
{
namespace
{
constexpr double SecondsBetweenLooks = 1.0;
}

FFolderPoll::FFolderPoll(std::filesystem::path InRoot, FFolderFilter InIsLeftOut)
	// Windows knows no folder under a name with a slash at its end.
	: Root(InRoot.has_filename() ? std::move(InRoot) : InRoot.parent_path())
	, IsLeftOut(std::move(InIsLeftOut))
{
	LookAtEverything();
}

FFolderChanges FFolderPoll::Take(double Seconds)
{
	FFolderChanges Changes;
	Waited += Seconds;
	if (Waited < SecondsBetweenLooks)
	{
		return Changes;
	}
	Waited = 0.0;
	for (auto& [Path, Known] : Folders)
	{
		std::error_code Error;
		const std::filesystem::file_time_type Stamp = std::filesystem::last_write_time(Path, Error);
		if (!Error && Stamp == Known.Stamp)
		{
			continue;
		}
		FFolder Now = LookAt(Path);
		std::set_symmetric_difference(
			Known.Files.begin(), Known.Files.end(), Now.Files.begin(), Now.Files.end(), std::back_inserter(Changes.Files));
		Changes.bEverything |= static_cast<bool>(Error) || Now.Folders != Known.Folders;
		Known = std::move(Now);
	}
	if (Changes.bEverything || Folders.empty())
	{
		const size_t NumBefore = Folders.size();
		LookAtEverything();
		Changes.bEverything |= Folders.size() != NumBefore;
	}
	return Changes;
}

void FFolderPoll::LookAtEverything()
{
	bool bHasLinks = false;
	Folders.clear();
	for (const std::filesystem::path& Folder : ListFolders(Root, IsLeftOut, bHasLinks))
	{
		Folders[Folder] = LookAt(Folder);
	}
}

FFolderPoll::FFolder FFolderPoll::LookAt(const std::filesystem::path& Folder)
{
	FFolder Now;
	std::error_code Error;
	// The stamp is taken first: what comes while the names are read shows at the next look.
	Now.Stamp = std::filesystem::last_write_time(Folder, Error);
	for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
	{
		std::error_code EntryError;
		(It->is_directory(EntryError) ? Now.Folders : Now.Files).insert(It->path());
	}
	return Now;
}
}
