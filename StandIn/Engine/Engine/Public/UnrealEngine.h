// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The interface of the engine loop. The helpers of the engine's header are left out.

/** Who brings the engine up, runs its frames and lets it clean up. */
class IEngineLoop
{
public:
	virtual ~IEngineLoop() {}

	/** Brings the engine up; 0 when it worked. */
	virtual int32 Init() = 0;

	/** Runs one frame. */
	virtual void Tick() = 0;

	/** Lets go of objects that wait for it. */
	virtual void ClearPendingCleanupObjects() = 0;
};
