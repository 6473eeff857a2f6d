// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Not in the engine: files that are the old one or the new one, whole, after a crash at any instant. The steps: a temporary
// of a unique name beside the target, write, flush it to the disk, put it in the target's place, flush the folder.
// A target that is a symbolic link stays one: the file it names is replaced. A read-only target is refused.
// On Windows a replacement that is denied or shared is tried five times within 185 ms; nothing else is tried again.

namespace StandIn
{
/** The steps of a save, in order. */
enum class EAtomicFileStep : uint8
{
	CreateTemporary,
	/** Half of the bytes are written before a hook sees this step, half after it. */
	Write,
	FlushFile,
	/** Seen again before each further try while another program holds the file. */
	Replace,
	FlushFolder
};

/** Seen by a test before each step; returning false makes the step fail with the reason "injected failure". */
typedef bool (*FAtomicFileHook)(EAtomicFileStep Step, const TCHAR* FileName);

/** Sets the hook for tests and returns the one before; null takes it away. */
CORE_API FAtomicFileHook SetAtomicFileHook(FAtomicFileHook Hook);

/**
 * Replaces a file's content, or creates the file in an existing folder; on failure the old file stays as it is and the
 * reason is a few words such as "No space left on device".
 */
CORE_API bool SaveFileAtomically(const FString& FileName, const void* Data, int64 NumBytes, FString& OutReason);

/** Deletes temporaries of this file that processes which no longer run left behind; returns how many. */
CORE_API int32 SweepTemporaries(const FString& FileName);

/** Lets every save of a file below a folder fail with these few words, until AllowSaves: for a session that only looks. */
CORE_API void RefuseSaves(const FString& Folder, const FString& Reason);

/** Takes all refusals back. */
CORE_API void AllowSaves();

/** Whether saves of a file are refused, and why. */
CORE_API bool AreSavesRefused(const FString& FileName, FString& OutReason);
}
