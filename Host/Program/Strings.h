// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <string>

// Between the engine's strings and the standard library's, which hold UTF-8 here.

namespace TintmillHost
{
/** The string as UTF-8. */
std::string ToUtf8(const FString& String);

/** UTF-8 as an engine string. */
FString FromUtf8(const std::string& String);
}
