// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include <filesystem>
#include <string>

// What saving a file whole needs from the operating system.

namespace StandInPrivate
{
/** The operating system's half of saving a file whole; functions that fail leave a few words in OutReason. */
struct FAtomicFilePlatform
{
	/** An open temporary file. */
	typedef int64 FHandle;

	enum class ECreate
	{
		Created,
		/** Another file has the name. */
		Exists,
		Failed
	};

	/** Creates a new file with the rights of the file it is to replace. */
	static ECreate Create(
		const std::filesystem::path& Temporary, const std::filesystem::path& Target, FHandle& OutHandle, std::string& OutReason);
	static bool Write(FHandle Handle, const char* Bytes, int64 NumBytes, std::string& OutReason);
	static bool FlushFile(FHandle Handle, std::string& OutReason);
	static bool Close(FHandle Handle, std::string& OutReason);
	enum class EReplace
	{
		Replaced,
		/** Another program holds the file; it may let go in a moment. */
		Held,
		Failed
	};

	/** Puts a file in another's place in one step, or leaves both as they are. */
	static EReplace Replace(const std::filesystem::path& Temporary, const std::filesystem::path& Target, std::string& OutReason);
	/** Whether another program keeps a file from being read; it may let go in a moment. */
	static bool IsHeld(const std::filesystem::path& File);
	/** Makes the folder's entries last. */
	static bool FlushFolder(const std::filesystem::path& Folder, std::string& OutReason);
};
}
