// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "HAL/Platform.h"
#include "HAL/PreprocessorHelpers.h"

// Small words used everywhere: "no index", and the tags that choose a constructor.

enum
{
	INDEX_NONE = -1
};

enum
{
	UNICODE_BOM = 0xfeff
};

/** Chooses a constructor that sets everything to nought. */
enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

/** Chooses a constructor that leaves the object unset. */
enum ENoInit
{
	NoInit
};

/** Chooses a constructor that builds the content in place from the arguments that follow. */
enum EInPlace
{
	InPlace
};
