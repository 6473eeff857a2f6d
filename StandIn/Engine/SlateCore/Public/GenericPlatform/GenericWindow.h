// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The native window behind a SWindow. Windows have none here: the host shows all of them on one surface.

/** A native window; never made by the stand-in, so pointers to it are null. */
class FGenericWindow
{
public:
	/** Destroys the window. */
	virtual ~FGenericWindow() {}
};
