// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"

// A rectangle by its edges; y grows downwards.

/** A rectangle given by its four edges. */
class FSlateRect
{
public:
	/** Left edge. */
	float Left;

	/** Upper edge. */
	float Top;

	/** Right edge. */
	float Right;

	/** Lower edge. */
	float Bottom;

	/** Makes the invalid rectangle, all edges at -1. */
	FSlateRect()
		: Left(-1.0f)
		, Top(-1.0f)
		, Right(-1.0f)
		, Bottom(-1.0f)
	{}

	/** Makes a rectangle of four edges. */
	FSlateRect(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{}

	/** Makes a rectangle of two corners. */
	FSlateRect(const FVector2D& InStartPos, const FVector2D& InEndPos)
		: Left(static_cast<float>(InStartPos.X))
		, Top(static_cast<float>(InStartPos.Y))
		, Right(static_cast<float>(InEndPos.X))
		, Bottom(static_cast<float>(InEndPos.Y))
	{}

	/** Makes a rectangle of a corner and an extent. */
	static FSlateRect FromPointAndExtent(const FVector2D& TopLeft, const FVector2D& Size) { return FSlateRect(TopLeft, TopLeft + Size); }

	/** Says whether the rectangle is not the invalid one and has no negative extent. */
	bool IsValid() const { return !(Left == -1.0f && Right == -1.0f && Bottom == -1.0f && Top == -1.0f) && Right >= Left && Bottom >= Top; }

	/** Says whether the rectangle has no area. */
	bool IsEmpty() const { return Right <= Left || Bottom <= Top; }

	/** Returns width and height. */
	FVector2D GetSize() const { return FVector2D(Right - Left, Bottom - Top); }

	/** Returns the centre. */
	FVector2D GetCenter() const { return FVector2D((Left + Right) * 0.5f, (Top + Bottom) * 0.5f); }

	/** Returns the upper left corner. */
	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }

	/** Returns the upper right corner. */
	FVector2D GetTopRight() const { return FVector2D(Right, Top); }

	/** Returns the lower right corner. */
	FVector2D GetBottomRight() const { return FVector2D(Right, Bottom); }

	/** Returns the lower left corner. */
	FVector2D GetBottomLeft() const { return FVector2D(Left, Bottom); }

	/** Returns the rectangle made smaller by a margin. */
	FSlateRect InsetBy(const FMargin& InsetAmount) const
	{
		return FSlateRect(Left + InsetAmount.Left, Top + InsetAmount.Top, Right - InsetAmount.Right, Bottom - InsetAmount.Bottom);
	}

	/** Returns the rectangle made larger by a margin. */
	FSlateRect ExtendBy(const FMargin& ExtendAmount) const { return InsetBy(ExtendAmount * -1.0f); }

	/** Returns the rectangle moved by a vector. */
	FSlateRect OffsetBy(const FVector2D& OffsetAmount) const
	{
		return FSlateRect(GetTopLeft() + OffsetAmount, GetBottomRight() + OffsetAmount);
	}

	/** Returns what both rectangles cover; without overlap a rectangle of no extent at the origin. */
	FSlateRect IntersectionWith(const FSlateRect& Other) const
	{
		const FSlateRect Intersected(
			FMath::Max(Left, Other.Left), FMath::Max(Top, Other.Top), FMath::Min(Right, Other.Right), FMath::Min(Bottom, Other.Bottom));
		return Intersected.Right < Intersected.Left || Intersected.Bottom < Intersected.Top ? FSlateRect(0, 0, 0, 0) : Intersected;
	}

	/** Returns the smallest rectangle that covers both. */
	FSlateRect Expand(const FSlateRect& Other) const
	{
		return FSlateRect(
			FMath::Min(Left, Other.Left), FMath::Min(Top, Other.Top), FMath::Max(Right, Other.Right), FMath::Max(Bottom, Other.Bottom));
	}

	/** Says whether the point lies inside, the left and upper edge included, the right and lower edge as well. */
	bool ContainsPoint(const FVector2D& Point) const { return Point.X >= Left && Point.X <= Right && Point.Y >= Top && Point.Y <= Bottom; }

	/** Says whether the rectangles share area. */
	static bool DoRectanglesIntersect(const FSlateRect& A, const FSlateRect& B)
	{
		return B.Left <= A.Right && B.Right >= A.Left && B.Top <= A.Bottom && B.Bottom >= A.Top;
	}

	/** Says whether B lies wholly inside A. */
	static bool IsRectangleContained(const FSlateRect& A, const FSlateRect& B)
	{
		return A.Left <= B.Left && A.Right >= B.Right && A.Top <= B.Top && A.Bottom >= B.Bottom;
	}

	/** Compares edge by edge. */
	bool operator==(const FSlateRect& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}

	/** Compares edge by edge. */
	bool operator!=(const FSlateRect& Other) const { return !(*this == Other); }
};
