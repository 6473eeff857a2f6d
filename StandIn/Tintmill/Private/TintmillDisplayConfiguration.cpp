// Copyright The Tintmill authors. All rights reserved.

#include "TintmillDisplayConfiguration.h"

#include <type_traits>

static_assert(std::is_trivially_copyable<FTintmillDisplayConfiguration>::value, "records are copied bit by bit");

FTintmillDisplayConfiguration::FTintmillDisplayConfiguration()
	: bEnableDisplay(false)
	, Intensity(1.0f)
	, LookAsset(nullptr)
{}
