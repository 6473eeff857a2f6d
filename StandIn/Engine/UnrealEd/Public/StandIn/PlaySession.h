// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

// Not in the engine: how a test or a program makes the start of a play session stop or fail.

namespace StandIn
{
/** Sets what decides after PreBeginPIE whether play may start; without it, or when it says true, it may. */
UNREALED_API void SetPlayCheck(TFunction<bool()> InCheck);

/** Sets what decides whether a game instance, by number, comes up; without it, or when it says true, it does. */
UNREALED_API void SetGameInstanceCheck(TFunction<bool(int32 InstanceIndex)> InCheck);

/** Fires the event of the list of all viewport clients. */
UNREALED_API void BroadcastViewportClientListChanged();

/** Fires the event of the list of level viewport clients. */
UNREALED_API void BroadcastLevelViewportClientListChanged();
}
