// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

// Space around a rectangle. The engine reflects this struct; here it is plain.

/** The space left, above, right of and below a rectangle, in Slate units. */
struct FMargin
{
	/** Space on the left. */
	float Left;

	/** Space above. */
	float Top;

	/** Space on the right. */
	float Right;

	/** Space below. */
	float Bottom;

	/** Makes a margin without space. */
	FMargin()
		: Left(0.0f)
		, Top(0.0f)
		, Right(0.0f)
		, Bottom(0.0f)
	{}

	/** Makes a margin of the same space on all sides. */
	FMargin(float UniformMargin)
		: Left(UniformMargin)
		, Top(UniformMargin)
		, Right(UniformMargin)
		, Bottom(UniformMargin)
	{}

	/** Makes a margin of one space left and right, another above and below. */
	FMargin(float Horizontal, float Vertical)
		: Left(Horizontal)
		, Top(Vertical)
		, Right(Horizontal)
		, Bottom(Vertical)
	{}

	/** Makes a margin of four spaces. */
	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{}

	/** Scales all sides. */
	FMargin operator*(float Scale) const { return FMargin(Left * Scale, Top * Scale, Right * Scale, Bottom * Scale); }

	/** Adds side by side. */
	FMargin operator+(const FMargin& Other) const
	{
		return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom);
	}

	/** Subtracts side by side. */
	FMargin operator-(const FMargin& Other) const
	{
		return FMargin(Left - Other.Left, Top - Other.Top, Right - Other.Right, Bottom - Other.Bottom);
	}

	/** Compares side by side. */
	bool operator==(const FMargin& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}

	/** Compares side by side. */
	bool operator!=(const FMargin& Other) const { return !(*this == Other); }

	/** Returns the left and top space as a vector. */
	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }

	/** Returns the space taken in both directions. */
	FVector2D GetDesiredSize() const { return FVector2D(Left + Right, Top + Bottom); }

	/** Returns the space taken along one axis. */
	template <EOrientation Orientation>
	float GetTotalSpaceAlong() const
	{
		return Orientation == Orient_Horizontal ? Left + Right : Top + Bottom;
	}

	/** Returns the space taken along an axis. */
	float GetTotalSpaceAlong(EOrientation Orientation) const { return Orientation == Orient_Horizontal ? Left + Right : Top + Bottom; }
};
