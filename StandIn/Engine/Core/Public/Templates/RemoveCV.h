// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/UnrealTypeTraits.h"

// The trait of this name; defined with its siblings.
