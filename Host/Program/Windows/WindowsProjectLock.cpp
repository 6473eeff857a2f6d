// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProjectLock.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <system_error>

namespace TintmillHost
{
EProjectLock FProjectLock::LockFile(const std::filesystem::path& NewFile, std::string& OutReason)
{
	// Nobody else may open the file while it is open here; it goes with its handle.
	const HANDLE Opened = CreateFileW(NewFile.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
		FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
	if (Opened == INVALID_HANDLE_VALUE)
	{
		const DWORD Error = GetLastError();
		OutReason = std::error_code(static_cast<int>(Error), std::system_category()).message();
		return Error == ERROR_SHARING_VIOLATION ? EProjectLock::HeldByOther : EProjectLock::NotWritable;
	}
	Handle = reinterpret_cast<std::intptr_t>(Opened);
	return EProjectLock::Held;
}

void FProjectLock::UnlockFile()
{
	CloseHandle(reinterpret_cast<HANDLE>(Handle));
	Handle = -1;
}
}
