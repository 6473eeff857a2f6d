// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

// The object system's own types.
