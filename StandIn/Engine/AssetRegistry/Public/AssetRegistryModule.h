// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/AssetRegistryModule.h"

// The older name of AssetRegistry/AssetRegistryModule.h.
