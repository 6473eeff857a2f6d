// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/ObjectMacros.h"

// What generated headers would need for functions. Functions are not reflected here, so there is nothing in it.
