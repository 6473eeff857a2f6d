// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/IAssetRegistry.h"

// The older name of AssetRegistry/IAssetRegistry.h.
