// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Math/IntPoint.h"

// A rectangle in whole numbers; Max lies just outside.

/** The points from Min up to, and without, Max. */
struct FIntRect
{
	FIntPoint Min;
	FIntPoint Max;

	/** An empty rectangle at the origin. */
	FIntRect() : Min(0, 0), Max(0, 0) {}
	FIntRect(int32 X0, int32 Y0, int32 X1, int32 Y1) : Min(X0, Y0), Max(X1, Y1) {}
	FIntRect(FIntPoint InMin, FIntPoint InMax) : Min(InMin), Max(InMax) {}

	bool operator==(const FIntRect& Other) const { return Min == Other.Min && Max == Other.Max; }
	bool operator!=(const FIntRect& Other) const { return !(*this == Other); }

	int32 Width() const { return Max.X - Min.X; }
	int32 Height() const { return Max.Y - Min.Y; }
	FIntPoint Size() const { return FIntPoint(Width(), Height()); }
	int32 Area() const { return Width() * Height(); }
	bool IsEmpty() const { return Width() == 0 && Height() == 0; }
	bool Contains(FIntPoint Point) const { return Point.X >= Min.X && Point.X < Max.X && Point.Y >= Min.Y && Point.Y < Max.Y; }

	/** Makes the rectangle the part that lies within the other. */
	void Clip(const FIntRect& Other)
	{
		Min = Min.ComponentMax(Other.Min);
		Max = Max.ComponentMin(Other.Max).ComponentMax(Min);
	}
};
