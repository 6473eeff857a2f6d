// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HAL/FileManager.h"

// Whole files as strings or bytes. Text is recognised by its byte order mark (UTF-8, UTF-16 in both orders), else it is
// UTF-8; bytes that are not become U+FFFD. Left out: bitmaps, line filters, string views. Saving here is not crash-safe:
// see StandIn/AtomicFile.h.

/** Reads and writes whole files. */
struct CORE_API FFileHelper
{
	enum class EEncodingOptions
	{
		/** Plain for ASCII text, UTF-16 with a mark for other text. */
		AutoDetect,
		ForceAnsi,
		ForceUnicode,
		ForceUTF8,
		ForceUTF8WithoutBOM
	};

	/** Reads a file; false when it cannot be read. */
	static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags = 0);

	/** Reads a text file; false when it cannot be read. */
	static bool LoadFileToString(FString& Result, const TCHAR* Filename);

	/** Reads a text file's lines without their ends; false when it cannot be read. */
	static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);

	/** Decodes a text file's bytes. */
	static void BufferToString(FString& Result, const uint8* Buffer, int32 Size);

	/** Writes a file; false when it cannot be written or is read-only. */
	static bool SaveArrayToFile(
		const TArray<uint8>& Array, const TCHAR* Filename, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);

	/** Writes a text file; false when it cannot be written or is read-only. Missing folders are made. */
	static bool SaveStringToFile(const FString& String, const TCHAR* Filename,
		EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(),
		uint32 WriteFlags = 0);
};
