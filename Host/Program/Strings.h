// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Program/PathText.h"

#include <filesystem>
#include <string>

// Between the engine's strings and the standard library's, which hold UTF-8 here.

namespace TintmillHost
{
/** The string as UTF-8. */
std::string ToUtf8(const FString& String);

/** UTF-8 as an engine string. */
FString FromUtf8(const std::string& String);

/** A path as the engine writes paths: with forward slashes. */
FString PathToEngine(const std::filesystem::path& Path);

/** The string with A to Z in lower case, for comparing whatever the case. */
std::string ToLowerCase(const std::string& String);
}
