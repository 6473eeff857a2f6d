// Copyright The Tintmill authors. All rights reserved.

#include <cstdio>
#include <cwchar>
#include <string>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

// FileHolder FILE none|read|replace: another program that has a file open, until its standard input ends. It lets others do nothing
// with the file meanwhile, or read and write it, or also delete and replace it. Prints one line: "held", or why it does not hold it.

int main()
{
	int Count = 0;
	wchar_t** const Words = CommandLineToArgvW(GetCommandLineW(), &Count);
	if (Count != 3)
	{
		std::puts("two arguments are needed");
		return 2;
	}
	const std::wstring Mode = Words[2];
	const DWORD Sharing = Mode == L"none" ? 0
		: Mode == L"read"                 ? FILE_SHARE_READ | FILE_SHARE_WRITE
										  : FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
	const HANDLE File = CreateFileW(Words[1], GENERIC_READ, Sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
	if (File == INVALID_HANDLE_VALUE)
	{
		std::printf("error %lu\n", GetLastError());
		return 2;
	}
	std::puts("held");
	std::fflush(stdout);
	while (std::getchar() != EOF)
	{}
	CloseHandle(File);
	return 0;
}
