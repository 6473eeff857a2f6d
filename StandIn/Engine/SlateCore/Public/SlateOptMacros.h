// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Brackets around long Construct functions; the stand-in never changes optimisation there.

#define BEGIN_SLATE_FUNCTION_BUILD_OPTIMIZATION
#define END_SLATE_FUNCTION_BUILD_OPTIMIZATION
