// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"

// Asset folders such as /Game/Looks.

namespace AssetPaths
{
/** A folder without slash at its end. */
inline FString WithoutSlash(const FString& Path)
{
	return Path.Len() > 1 && Path.EndsWith(TEXT("/")) ? Path.LeftChop(1) : Path;
}

/** Says whether a folder is another one or lies below it. */
inline bool IsAtOrBelow(const FString& Path, const FString& Base)
{
	return Path == Base || Path.StartsWith(Base + TEXT("/"));
}
}
