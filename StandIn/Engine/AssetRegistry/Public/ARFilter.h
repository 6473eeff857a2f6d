// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/ARFilter.h"

// The older name of AssetRegistry/ARFilter.h.
