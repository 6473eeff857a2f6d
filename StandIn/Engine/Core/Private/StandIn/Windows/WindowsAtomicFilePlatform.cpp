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
bool FailWithLastError(DWORD Error, std::string& OutReason)
{
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
		const DWORD Error = GetLastError();
		FailWithLastError(Error, OutReason);
		return Error == ERROR_FILE_EXISTS ? ECreate::Exists : ECreate::Failed;
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
			return FailWithLastError(GetLastError(), OutReason);
		}
		Bytes += Written;
		NumBytes -= Written;
	}
	return true;
}

bool FAtomicFilePlatform::FlushFile(FHandle Handle, std::string& OutReason)
{
	return FlushFileBuffers(ToHandle(Handle)) || FailWithLastError(GetLastError(), OutReason);
}

bool FAtomicFilePlatform::Close(FHandle Handle, std::string& OutReason)
{
	return CloseHandle(ToHandle(Handle)) || FailWithLastError(GetLastError(), OutReason);
}

FAtomicFilePlatform::EReplace FAtomicFilePlatform::Replace(
	const std::filesystem::path& Temporary, const std::filesystem::path& Target, std::string& OutReason)
{
	if (MoveFileExW(Temporary.c_str(), Target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
	{
		return EReplace::Replaced;
	}
	const DWORD Error = GetLastError();
	FailWithLastError(Error, OutReason);
	return Error == ERROR_ACCESS_DENIED || Error == ERROR_SHARING_VIOLATION ? EReplace::Held : EReplace::Failed;
}

bool FAtomicFilePlatform::IsHeld(const std::filesystem::path& File)
{
	HANDLE Handle = CreateFileW(File.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
		FILE_ATTRIBUTE_NORMAL, nullptr);
	if (Handle == INVALID_HANDLE_VALUE)
	{
		return GetLastError() == ERROR_SHARING_VIOLATION;
	}
	CloseHandle(Handle);
	return false;
}

bool FAtomicFilePlatform::FlushFolder(const std::filesystem::path& Folder, std::string& OutReason)
{
	// The write-through move has done it.
	(void)Folder;
	(void)OutReason;
	return true;
}
}
