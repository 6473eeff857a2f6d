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

namespace
{
void SetChanged(const std::filesystem::path& Path, ULONGLONG Then)
{
	const FILETIME Time = {DWORD(Then), DWORD(Then >> 32)};
	// Only with backup semantics does a folder open.
	const HANDLE Handle = CreateFileW(Path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
		OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
	ASSERT_NE(INVALID_HANDLE_VALUE, Handle) << Path;
	EXPECT_TRUE(SetFileTime(Handle, nullptr, nullptr, &Time)) << Path;
	CloseHandle(Handle);
}
}

void SetChangedHoursAgo(const std::filesystem::path& Path, int Hours)
{
	FILETIME Now = {};
	GetSystemTimeAsFileTime(&Now);
	// File times count tenths of a microsecond.
	SetChanged(Path, (ULONGLONG(Now.dwHighDateTime) << 32 | Now.dwLowDateTime) - ULONGLONG(Hours) * 36000000000ULL);
}

void SetChangedAt(const std::filesystem::path& Path, std::int64_t Ticks)
{
	constexpr ULONGLONG Year2020 = 132223104000000000ULL;
	SetChanged(Path, Year2020 + ULONGLONG(Ticks));
}
