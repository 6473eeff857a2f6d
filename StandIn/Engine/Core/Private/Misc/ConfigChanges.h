// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/ConfigDocument.h"
#include "UObject/NameTypes.h"
#include <vector>

// What a save changes in a file: found by comparing memory with what the file was known to yield, applied to its lines.

namespace StandIn
{
/** New lines of one key; none to take its lines out. */
struct FConfigKeyChange
{
	FName Key;
	TArray<FString> Values;
};

/** The changed keys of one section. */
struct FConfigSectionChange
{
	FString Section;
	std::vector<FConfigKeyChange> Keys;
};

/** Finds the changes that lead from what was known to what is now; a key that is as in the hierarchy gets no lines. */
std::vector<FConfigSectionChange> FindConfigChanges(const FConfigFile& Known, const FConfigFile& Now, const FConfigFile* Hierarchy);

/** Gives one file all keys as another has them. */
void AbsorbConfigChanges(FConfigFile& File, const FConfigFile& Other);

/**
 * Applies changes to a file's lines: a changed value keeps its line's place, new ones follow their key's last line or end
 * their section, new sections end the file, sections that lose all their lines go. Everything else stays as it is.
 */
void ApplyConfigChanges(FConfigDocument& Document, const std::vector<FConfigSectionChange>& Changes);
}
