// Copyright The Tintmill authors. All rights reserved.

#include "RHI.h"

ERHIFeatureLevel::Type GMaxRHIFeatureLevel = ERHIFeatureLevel::SM5;
