// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "RHI.h"

// Not in the engine: lets a test see which pixels of which surface are read, and how.

class FRenderTarget;

namespace StandIn
{
DECLARE_MULTICAST_DELEGATE_ThreeParams(
	FOnPixelsRead, const FRenderTarget& /*Target*/, const FReadSurfaceDataFlags& /*Flags*/, const FIntRect& /*Rect*/);

/** Fires before each read of pixels, whatever comes of it; the rectangle is the caller's, all zero for the whole surface. */
ENGINE_API FOnPixelsRead& OnPixelsRead();
}
