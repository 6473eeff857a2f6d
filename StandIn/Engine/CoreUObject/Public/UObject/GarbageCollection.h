// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/UObjectGlobals.h"

// The collector; CollectGarbage is declared in UObject/UObjectGlobals.h. Left out: locks, incremental purge, token streams, clusters.
