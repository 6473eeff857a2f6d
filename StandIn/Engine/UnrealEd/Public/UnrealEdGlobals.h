// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The editor engine under its concrete class.

class UUnrealEdEngine;

/** The editor engine; null whenever GEditor is. */
extern UNREALED_API UUnrealEdEngine* GUnrealEd;
