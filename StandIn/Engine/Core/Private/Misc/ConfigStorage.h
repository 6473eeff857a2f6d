// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/ConfigDocument.h"
#include <string>

// Ini files on disk: reading, keeping unreadable ones aside, saving, and telling a person about trouble.

namespace StandIn
{
enum class EConfigRead
{
	Read,
	/** There is no such file. */
	Missing,
	/** It is there but cannot be read. */
	Failed,
	/** Another program keeps it from being read, also after a moment. */
	Held
};

/** Number of a file name for FConfigValue::OriginFile; INDEX_NONE for "". */
int32 InternConfigOriginFile(const FString& Filename);

/** Reads an ini file's bytes; on failure the reason is a few words. */
EConfigRead ReadConfigBytes(const FString& Filename, std::string& OutBytes, FString& OutReason);

/** Tells a person about a hierarchy file that cannot be read, or has unreadable lines. */
void NoticeHierarchyFile(const FString& Filename, const FString& Reason, int32 FirstLine, int32 NumLines);

/** Reads a saved file; never fails. Copies a file with unreadable lines aside at once and tells a person about any trouble. */
TSharedRef<FConfigDocument> LoadConfigDocument(const FString& Filename);

/**
 * Saves what has changed between Known (what InOutDocument and the hierarchy yield) and Now. Lines that others have written
 * to the file in the meantime are kept, and bOutChangedByOthers is set. False, with a notice, when it could not be saved.
 */
bool SaveConfigDocument(const FString& Filename, TSharedPtr<FConfigDocument>& InOutDocument, const FConfigFile& Known,
	const FConfigFile& Now, const FConfigFile* Hierarchy, bool& bOutChangedByOthers);
}
