// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// What StandIn/PlaySession.h set, asked by the editor engine.

namespace StandIn
{
/** Tells whether play may start. */
bool MayPlayStart();

/** Tells whether a game instance comes up. */
bool DoesGameInstanceComeUp(int32 InstanceIndex);
}
