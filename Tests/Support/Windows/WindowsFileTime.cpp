// Copyright The Tintmill authors. All rights reserved.

#include "Support/FileTime.h"

#include <gtest/gtest.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

void SetChangedHoursAgo(const std::filesystem::path& Path, int Hours)
{
	FILETIME Now = {};
	GetSystemTimeAsFileTime(&Now);
	// File times count tenths of a microsecond.
	const ULONGLONG Then = (ULONGLONG(Now.dwHighDateTime) << 32 | Now.dwLowDateTime) - ULONGLONG(Hours) * 36000000000ULL;
	const FILETIME Time = {DWORD(Then), DWORD(Then >> 32)};
	// Only with backup semantics does a folder open.
	const HANDLE Handle = CreateFileW(Path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
		OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
	ASSERT_NE(INVALID_HANDLE_VALUE, Handle) << Path;
	EXPECT_TRUE(SetFileTime(Handle, nullptr, nullptr, &Time)) << Path;
	CloseHandle(Handle);
}
