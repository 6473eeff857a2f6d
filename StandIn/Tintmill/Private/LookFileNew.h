// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"

// What a new look starts as.

namespace LookFile
{
/** The extension of a new look's file. */
extern const char* const NewLookExtension;

/** Writes a .cube that leaves every picture as it is, whole or not at all; false with a few words why. */
bool WriteNewLook(const FString& FileName, FString& OutReason);
}
