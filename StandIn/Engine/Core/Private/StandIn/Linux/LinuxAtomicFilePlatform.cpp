// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFilePlatform.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace StandInPrivate
{
namespace
{
bool FailWithErrno(std::string& OutReason)
{
	OutReason = std::strerror(errno);
	return false;
}
}

FAtomicFilePlatform::ECreate FAtomicFilePlatform::Create(
	const std::filesystem::path& Temporary, const std::filesystem::path& Target, FHandle& OutHandle, std::string& OutReason)
{
	struct stat Old = {};
	const bool bHasOld = stat(Target.c_str(), &Old) == 0;
	const int File = open(Temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
	if (File < 0)
	{
		const bool bExists = errno == EEXIST;
		FailWithErrno(OutReason);
		return bExists ? ECreate::Exists : ECreate::Failed;
	}
	if (bHasOld)
	{
		// Rights that cannot be carried over are no reason not to save.
		(void)!fchmod(File, Old.st_mode & 07777);
	}
	OutHandle = File;
	return ECreate::Created;
}

bool FAtomicFilePlatform::Write(FHandle Handle, const char* Bytes, int64 NumBytes, std::string& OutReason)
{
	while (NumBytes > 0)
	{
		const ssize_t Written = write(int(Handle), Bytes, size_t(NumBytes));
		if (Written < 0 && errno != EINTR)
		{
			return FailWithErrno(OutReason);
		}
		if (Written > 0)
		{
			Bytes += Written;
			NumBytes -= Written;
		}
	}
	return true;
}

bool FAtomicFilePlatform::FlushFile(FHandle Handle, std::string& OutReason)
{
	return fsync(int(Handle)) == 0 || FailWithErrno(OutReason);
}

bool FAtomicFilePlatform::Close(FHandle Handle, std::string& OutReason)
{
	// After EINTR the descriptor is closed all the same.
	return close(int(Handle)) == 0 || errno == EINTR || FailWithErrno(OutReason);
}

FAtomicFilePlatform::EReplace FAtomicFilePlatform::Replace(
	const std::filesystem::path& Temporary, const std::filesystem::path& Target, std::string& OutReason)
{
	// Whoever has the old file open keeps it; nobody holds up a rename.
	if (std::rename(Temporary.c_str(), Target.c_str()) == 0)
	{
		return EReplace::Replaced;
	}
	FailWithErrno(OutReason);
	return EReplace::Failed;
}

bool FAtomicFilePlatform::IsHeld(const std::filesystem::path& File)
{
	// Whoever has a file open leaves it open to everybody else.
	(void)File;
	return false;
}

bool FAtomicFilePlatform::FlushFolder(const std::filesystem::path& Folder, std::string& OutReason)
{
	const int Directory = open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
	if (Directory < 0)
	{
		return FailWithErrno(OutReason);
	}
	// Some file systems cannot flush folders; there is nothing better to do on them.
	const bool bFlushed = fsync(Directory) == 0 || errno == EINVAL || errno == ENOTSUP || FailWithErrno(OutReason);
	close(Directory);
	return bFlushed;
}
}
