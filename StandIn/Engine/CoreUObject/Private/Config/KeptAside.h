// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Lines of a configuration file that could not be read whole: before a save drops them, the file is copied aside as
// <file>.kept-<n>, where n is the first number that is free or whose copy has the same content.

namespace StandInPrivate
{
/** Notes that a key of a file has text that a save would drop. */
void NoteUnreadText(const FString& FileName, const FString& Section, const FString& Key);
/** Says whether a key has text that a save would drop. */
bool HasUnreadText(const FString& FileName, const FString& Section, const FString& Key);
/** Name of the copy that KeepAside would make. */
FString GetKeptAsideName(const FString& FileName);
/** Copies the file aside and forgets what was noted of it; false, with the reason, when that fails. */
bool KeepAside(const FString& FileName, FString& OutCopy, FString& OutReason);
/** Forgets what was noted of a key, which is about to be read again. */
void ForgetUnreadText(const FString& FileName, const FString& Section, const FString& Key);
}
