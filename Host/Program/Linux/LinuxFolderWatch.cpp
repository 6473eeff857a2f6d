// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/FolderPoll.h"
#include "Host/Program/FolderWatch.h"

#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>
#include <unordered_map>
#include <utility>

namespace TintmillHost
{
namespace
{
constexpr uint32_t WatchedEvents = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB
	| IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

/** Has the kernel tell of changes. */
class FLinuxFolderWatch : public IFolderWatch
{
public:
	FLinuxFolderWatch(std::filesystem::path InRoot, FFolderFilter InIsLeftOut)
		: Root(std::move(InRoot))
		, IsLeftOut(std::move(InIsLeftOut))
	{}

	virtual ~FLinuxFolderWatch() { Stop(); }

	/** Watches everything that is there now; false when the system cannot do that. */
	bool Start()
	{
		Stop();
		Queue = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
		for (const std::filesystem::path& Folder : ListFolders(Root, IsLeftOut, bHasLinks))
		{
			const int Watch = Queue < 0 ? -1 : inotify_add_watch(Queue, Folder.c_str(), WatchedEvents);
			if (Watch < 0)
			{
				Stop();
				return false;
			}
			Folders[Watch] = Folder;
		}
		// A folder that is not there cannot be watched.
		return !Folders.empty();
	}

	virtual FFolderChanges Take(double Seconds) override
	{
		if (Fallback)
		{
			return Fallback->Take(Seconds);
		}
		FFolderChanges Changes;
		alignas(inotify_event) char Buffer[16 * 1024];
		for (ssize_t Count = read(Queue, Buffer, sizeof(Buffer)); Count > 0; Count = read(Queue, Buffer, sizeof(Buffer)))
		{
			for (ssize_t At = 0; At < Count;)
			{
				const auto* const Event = reinterpret_cast<const inotify_event*>(Buffer + At);
				Note(*Event, Changes);
				At += static_cast<ssize_t>(sizeof(inotify_event) + Event->len);
			}
		}
		if (Changes.bEverything && !Start())
		{
			Fallback = std::make_unique<FFolderPoll>(Root, IsLeftOut);
		}
		return Changes;
	}

	// What a link leads to is written elsewhere.
	virtual bool TellsOfWrites() const override { return !Fallback && !bHasLinks; }

private:
	void Note(const inotify_event& Event, FFolderChanges& Changes)
	{
		const auto Folder = Folders.find(Event.wd);
		if ((Event.mask & (IN_Q_OVERFLOW | IN_DELETE_SELF | IN_MOVE_SELF)) != 0)
		{
			Changes.bEverything = true;
		}
		else if (Folder != Folders.end() && Event.len > 0)
		{
			const std::filesystem::path Name = Folder->second / Event.name;
			const bool bFolder = (Event.mask & IN_ISDIR) != 0;
			Changes.bEverything |= bFolder && !(IsLeftOut && IsLeftOut(Name));
			if (!bFolder)
			{
				AddFile(Name, Changes);
			}
		}
	}

	/** A file that is being written is told of many times in a row. */
	static void AddFile(const std::filesystem::path& Name, FFolderChanges& Changes)
	{
		if (Changes.Files.empty() || Changes.Files.back() != Name)
		{
			Changes.Files.push_back(Name);
		}
	}

	void Stop()
	{
		if (Queue >= 0)
		{
			close(Queue);
		}
		Queue = -1;
		Folders.clear();
	}

	std::filesystem::path Root;
	FFolderFilter IsLeftOut;
	std::unordered_map<int, std::filesystem::path> Folders;
	std::unique_ptr<FFolderPoll> Fallback;
	int Queue = -1;
	bool bHasLinks = false;
};
}

std::unique_ptr<IFolderWatch> WatchFolder(const std::filesystem::path& Folder, const FFolderFilter& IsLeftOut)
{
	auto Watch = std::make_unique<FLinuxFolderWatch>(Folder, IsLeftOut);
	if (Watch->Start())
	{
		return Watch;
	}
	return std::make_unique<FFolderPoll>(Folder, IsLeftOut);
}
}
