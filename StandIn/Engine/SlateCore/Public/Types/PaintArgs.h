// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class FHittestGrid;
class SWidget;

// What goes down the tree with a paint pass.

/** What goes down the tree with a paint pass: parent, hit-test grid, time. */
class SLATECORE_API FPaintArgs
{
public:
	/** Makes the arguments of a window's paint pass; times are in seconds. */
	FPaintArgs(const SWidget* InPaintParent, FHittestGrid& InRootHittestGrid, double InCurrentTime, float InDeltaTime);

	/** Returns the same arguments with another parent. */
	FPaintArgs WithNewParent(const SWidget* InParent) const;

	/** Returns the widget that paints its children now. */
	const SWidget* GetPaintParent() const { return PaintParent; }

	/** Returns the grid in which painted widgets are noted. */
	FHittestGrid& GetHittestGrid() const { return *HittestGrid; }

	/** Returns the injected time, in seconds. */
	double GetCurrentTime() const { return CurrentTime; }

	/** Returns the time since the last pass, in seconds. */
	float GetDeltaTime() const { return DeltaTime; }

	/** Says whether parents let the mouse through to children. */
	bool GetInheritedHittestability() const { return bInheritedHittestability; }

	/** Sets whether children can be hit. */
	void SetInheritedHittestability(bool bInInheritedHittestability) { bInheritedHittestability = bInInheritedHittestability; }

	/** Returns the parent's note in the hit-test grid, INDEX_NONE above the window. */
	int32 GetHittestParentIndex() const { return HittestParentIndex; }

	/** Sets the parent's note in the hit-test grid. */
	void SetHittestParentIndex(int32 InIndex) { HittestParentIndex = InIndex; }

private:
	const SWidget* PaintParent;
	FHittestGrid* HittestGrid;
	double CurrentTime;
	float DeltaTime;
	int32 HittestParentIndex;
	bool bInheritedHittestability;
};
