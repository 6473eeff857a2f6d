// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/CameraMover.h"

namespace StandIn
{
namespace
{
FCameraMover& GetCameraMover()
{
	static FCameraMover Mover;
	return Mover;
}
}

void SetCameraMover(FCameraMover InMover)
{
	GetCameraMover() = MoveTemp(InMover);
}

bool MoveCamera(FEditorViewportClient& Client, FViewport& Viewport, const FKey& Key, float Delta)
{
	return GetCameraMover() && GetCameraMover()(Client, Viewport, Key, Delta);
}
}
