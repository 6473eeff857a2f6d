// Copyright The Tintmill authors. All rights reserved.

#include "HAL/Platform.h"

// A library of a module's name that exports no InitializeModule.

extern "C" DLLEXPORT int32 CoreTestNoEntryAnswer()
{
	return 42;
}
