// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Log categories of the user-interface modules.

DECLARE_LOG_CATEGORY_EXTERN(LogSlate, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogSlateStyle, Log, All);
