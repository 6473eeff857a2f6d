// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProjectLock.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TintmillHost
{
namespace
{
/** Whether the open file is the one of this name, not one that was deleted in the meantime. */
bool IsTheFile(int Descriptor, const std::filesystem::path& Name)
{
	struct stat Open = {};
	struct stat Named = {};
	return fstat(Descriptor, &Open) == 0 && stat(Name.c_str(), &Named) == 0 && Open.st_dev == Named.st_dev && Open.st_ino == Named.st_ino;
}
}

EProjectLock FProjectLock::LockFile(const std::filesystem::path& NewFile, std::string& OutReason)
{
	for (;;)
	{
		const int Descriptor = open(NewFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
		if (Descriptor < 0)
		{
			OutReason = std::strerror(errno);
			return EProjectLock::NotWritable;
		}
		if (flock(Descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
		{
			close(Descriptor);
			return EProjectLock::HeldByOther;
		}
		// Where the file system knows no locks, everybody has the project.
		if (IsTheFile(Descriptor, NewFile))
		{
			Handle = Descriptor;
			return EProjectLock::Held;
		}
		close(Descriptor);
	}
}

void FProjectLock::UnlockFile()
{
	unlink(File.c_str());
	close(static_cast<int>(Handle));
	Handle = -1;
}
}
