// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include <filesystem>

// Between engine file names and the C++ library's.

namespace StandInPrivate
{
/** Converts a file name; false when it is empty or not valid UTF-16. */
bool ToNativePath(const TCHAR* Filename, std::filesystem::path& OutPath);

/** Converts a path to a file name with forward slashes; what is not valid text becomes U+FFFD. */
FString FromNativePath(const std::filesystem::path& Path);
}
