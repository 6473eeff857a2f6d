// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "HAL/Platform.h"
#include "Misc/Build.h"
#include "HAL/PreprocessorHelpers.h"
#include "Misc/CoreMiscDefines.h"
#include "Math/NumericLimits.h"

// Base types, build switches and limits: what every other header may rely on.
