// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ScenePainter.h"

namespace
{
/** The painter of all viewports and the number of its replacements. */
struct FPainterState
{
	StandIn::FScenePainter Painter;
	uint32 Generation = 1;
};

FPainterState& GetPainterState()
{
	static FPainterState State;
	return State;
}
}

void StandIn::SetScenePainter(FScenePainter InPainter)
{
	FPainterState& State = GetPainterState();
	State.Painter = MoveTemp(InPainter);
	++State.Generation;
}

void StandIn::PaintScene(FViewportClient& Client, const FIntPoint& Size, FColor* Pixels)
{
	FPainterState& State = GetPainterState();
	if (State.Painter)
	{
		State.Painter(Client, Size, Pixels);
		return;
	}
	for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
	{
		Pixels[Index] = FColor(48, 48, 48, 0);
	}
}

uint32 StandIn::GetScenePainterGeneration()
{
	return GetPainterState().Generation;
}
