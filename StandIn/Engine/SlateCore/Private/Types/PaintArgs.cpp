// Copyright The Tintmill authors. All rights reserved.

#include "Types/PaintArgs.h"

FPaintArgs::FPaintArgs(const SWidget* InPaintParent, FHittestGrid& InRootHittestGrid, double InCurrentTime, float InDeltaTime)
	: PaintParent(InPaintParent)
	, HittestGrid(&InRootHittestGrid)
	, CurrentTime(InCurrentTime)
	, DeltaTime(InDeltaTime)
	, HittestParentIndex(INDEX_NONE)
	, bInheritedHittestability(true)
{}

FPaintArgs FPaintArgs::WithNewParent(const SWidget* InParent) const
{
	FPaintArgs Args(*this);
	Args.PaintParent = InParent;
	return Args;
}
