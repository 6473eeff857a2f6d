// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFilePlatform.h"

#include "Misc/TextCodec.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace StandInPrivate
{
namespace
{
bool FailWithLastError(std::string& OutReason)
{
	const DWORD Error = GetLastError();
	wchar_t Text[512] = {};
	DWORD Length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, Error, 0, Text, 511, nullptr);
	while (Length > 0 && (Text[Length - 1] == L'\r' || Text[Length - 1] == L'\n' || Text[Length - 1] == L'.'))
	{
		--Length;
	}
	OutReason = Length > 0 ? ToUtf8(Text, Length) : "error " + std::to_string(Error);
	return false;
}

HANDLE ToHandle(FAtomicFilePlatform::FHandle Handle)
{
	return reinterpret_cast<HANDLE>(Handle);
}
}

FAtomicFilePlatform::ECreate FAtomicFilePlatform::Create(
	const std::filesystem::path& Temporary, const std::filesystem::path& Target, FHandle& OutHandle, std::string& OutReason)
{
	(void)Target;
	HANDLE File = CreateFileW(Temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
	if (File == INVALID_HANDLE_VALUE)
	{
		const bool bExists = GetLastError() == ERROR_FILE_EXISTS;
		FailWithLastError(OutReason);
		return bExists ? ECreate::Exists : ECreate::Failed;
	}
	OutHandle = reinterpret_cast<FHandle>(File);
	return ECreate::Created;
}

bool FAtomicFilePlatform::Write(FHandle Handle, const char* Bytes, int64 NumBytes, std::string& OutReason)
{
	while (NumBytes > 0)
	{
		const DWORD Piece = NumBytes > 0x1000000 ? 0x1000000 : DWORD(NumBytes);
		DWORD Written = 0;
		if (!WriteFile(ToHandle(Handle), Bytes, Piece, &Written, nullptr))
		{
			return FailWithLastError(OutReason);
		}
		Bytes += Written;
		NumBytes -= Written;
	}
	return true;
}

bool FAtomicFilePlatform::FlushFile(FHandle Handle, std::string& OutReason)
{
	return FlushFileBuffers(ToHandle(Handle)) || FailWithLastError(OutReason);
}

bool FAtomicFilePlatform::Close(FHandle Handle, std::string& OutReason)
{
	return CloseHandle(ToHandle(Handle)) || FailWithLastError(OutReason);
}

bool FAtomicFilePlatform::Replace(const std::filesystem::path& Temporary, const std::filesystem::path& Target, std::string& OutReason)
{
	// Virus scanners and indexers hold a fresh file for moments: wait for those, and for nothing else.
	const DWORD Pauses[] = {5, 20, 50, 110};
	for (size_t Try = 0;; ++Try)
	{
		if (MoveFileExW(Temporary.c_str(), Target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
		{
			return true;
		}
		const DWORD Error = GetLastError();
		const bool bMayPass = Error == ERROR_ACCESS_DENIED || Error == ERROR_SHARING_VIOLATION;
		if (!bMayPass || Try >= sizeof(Pauses) / sizeof(Pauses[0]))
		{
			return FailWithLastError(OutReason);
		}
		Sleep(Pauses[Try]);
	}
}

bool FAtomicFilePlatform::FlushFolder(const std::filesystem::path& Folder, std::string& OutReason)
{
	// The write-through move has done it.
	(void)Folder;
	(void)OutReason;
	return true;
}
}
