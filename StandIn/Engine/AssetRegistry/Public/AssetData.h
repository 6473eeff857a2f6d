// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/AssetData.h"

// The older name of AssetRegistry/AssetData.h.
