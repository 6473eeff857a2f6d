// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

// Folders of the disk, as far as asset files need them.

namespace StandInPrivate
{
/** Names in a folder, sorted. */
struct FFolderContent
{
	TArray<FString> Files;
	TArray<FString> Folders;
	/** Number of names that are no valid text. */
	int32 NumUnreadableNames = 0;
};

/** Lists a folder; false when it cannot be read. Symbolic links count as what they lead to; dead ones are left out. */
bool ListFolder(const FString& Folder, FFolderContent& OutContent);
/** A folder's path without symbolic links, or "" when there is no such folder. */
FString GetRealFolder(const FString& Folder);
}
