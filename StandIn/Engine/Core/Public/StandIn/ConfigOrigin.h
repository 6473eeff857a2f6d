// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/ConfigCacheIni.h"

// Not in the engine: where a configuration value was read, so that an error in it can name file and line.

namespace StandIn
{
/** Where a value was read; Line is 0 and File empty for a value that the program set. */
struct FConfigOrigin
{
	FString File;
	int32 Line = 0;

	/** Returns "file:line", or "" for a value that the program set. */
	FString ToString() const { return Line > 0 ? FString::Printf(TEXT("%s:%d"), *File, Line) : FString(); }
};

/** Where a value was read. */
CORE_API FConfigOrigin GetConfigOrigin(const FConfigValue& Value);

/** Where the values of a key in GConfig were read, in the order of GetArray; returns their number. */
CORE_API int32 GetConfigOrigins(const TCHAR* Section, const TCHAR* Key, TArray<FConfigOrigin>& OutOrigins, const FString& Filename);
}
