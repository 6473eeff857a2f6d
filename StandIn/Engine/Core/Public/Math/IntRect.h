// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/IntPoint.h"

// A rectangle of whole numbers, Max exclusive.

/** A rectangle: Min inclusive, Max exclusive. */
struct CORE_API FIntRect
{
	FIntPoint Min;
	FIntPoint Max;

	/** Empty, at the origin. */
	FIntRect()
		: Min(ForceInit)
		, Max(ForceInit)
	{}

	/** From its edges. */
	FIntRect(int32 X0, int32 Y0, int32 X1, int32 Y1)
		: Min(X0, Y0)
		, Max(X1, Y1)
	{}

	/** From its corners. */
	FIntRect(FIntPoint InMin, FIntPoint InMax)
		: Min(InMin)
		, Max(InMax)
	{}

	/** Equal corners. */
	bool operator==(const FIntRect& Other) const { return Min == Other.Min && Max == Other.Max; }
	/** Any corner differs. */
	bool operator!=(const FIntRect& Other) const { return !(*this == Other); }
	/** Moved. */
	FIntRect operator+(const FIntPoint& Point) const { return FIntRect(Min + Point, Max + Point); }
	/** Moved back. */
	FIntRect operator-(const FIntPoint& Point) const { return FIntRect(Min - Point, Max - Point); }
	/** Width. */
	int32 Width() const { return Max.X - Min.X; }
	/** Height. */
	int32 Height() const { return Max.Y - Min.Y; }
	/** Width and height. */
	FIntPoint Size() const { return FIntPoint(Width(), Height()); }
	/** Width times height. */
	int32 Area() const { return Width() * Height(); }
	/** Whether there is nothing inside. */
	bool IsEmpty() const { return Width() == 0 && Height() == 0; }
	/** Whether a point lies inside. */
	bool Contains(FIntPoint P) const { return P.X >= Min.X && P.X < Max.X && P.Y >= Min.Y && P.Y < Max.Y; }
	/** Whether two rectangles share a point. */
	bool Intersect(const FIntRect& Other) const
	{
		return Other.Min.X < Max.X && Other.Max.X > Min.X && Other.Min.Y < Max.Y && Other.Max.Y > Min.Y;
	}
	/** Cuts to what both share; empty where they share nothing. */
	void Clip(const FIntRect& Other)
	{
		Min = Min.ComponentMax(Other.Min);
		Max = Max.ComponentMin(Other.Max).ComponentMax(Min);
	}
	/** Grows to hold a point. */
	void Include(FIntPoint Point)
	{
		Min = Min.ComponentMin(Point);
		Max = Max.ComponentMax(Point);
	}

	/** Text of both corners. */
	FString ToString() const;
};

/** Hash of both corners. */
inline uint32 GetTypeHash(const FIntRect& InRect)
{
	return HashCombine(GetTypeHash(InRect.Min), GetTypeHash(InRect.Max));
}
