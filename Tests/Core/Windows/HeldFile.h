// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <gtest/gtest.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

/** A file that is open as a program opens one that others may read and write but neither delete nor replace. */
class FHeldFile
{
public:
	explicit FHeldFile(const std::filesystem::path& Path)
		: Handle(CreateFileW(Path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr))
	{
		EXPECT_NE(INVALID_HANDLE_VALUE, Handle);
	}

	~FHeldFile() { LetGo(); }

	FHeldFile(const FHeldFile&) = delete;
	FHeldFile& operator=(const FHeldFile&) = delete;

	/** Closes the file before the end of the scope. */
	void LetGo()
	{
		if (Handle != INVALID_HANDLE_VALUE)
		{
			CloseHandle(Handle);
			Handle = INVALID_HANDLE_VALUE;
		}
	}

private:
	HANDLE Handle;
};
