// Copyright The Tintmill authors. All rights reserved.

#pragma once

// The later home of the viewport clients; in this version they are in UnrealClient.h.

#include "UnrealClient.h"
