// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// The place in the source of the line that is being logged on this thread.

namespace StandInPrivate
{
/** A place in the source. */
struct FLogSource
{
	const ANSICHAR* File = "";
	int32 Line = 0;
};

/** The calling thread's place. */
FLogSource& CurrentLogSource();
}
