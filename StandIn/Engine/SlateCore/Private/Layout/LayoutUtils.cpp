// Copyright The Tintmill authors. All rights reserved.

#include "Layout/LayoutUtils.h"

namespace
{
/** Says whether a length has room after or before an anchor. */
bool HasRoomBeside(float AnchorStart, float AnchorEnd, float Length, float LimitStart, float LimitEnd)
{
	return AnchorEnd + Length <= LimitEnd || AnchorStart - Length >= LimitStart;
}

/** Places a length after, else before, an anchor; where neither side has room, on the larger side, pushed into the limits. */
float PlaceBeside(float AnchorStart, float AnchorEnd, float Length, float LimitStart, float LimitEnd)
{
	if (AnchorEnd + Length <= LimitEnd)
	{
		return AnchorEnd;
	}
	if (AnchorStart - Length >= LimitStart)
	{
		return AnchorStart - Length;
	}
	const float Wanted = LimitEnd - AnchorEnd >= AnchorStart - LimitStart ? AnchorEnd : AnchorStart - Length;
	return FMath::Max(LimitStart, FMath::Min(Wanted, LimitEnd - Length));
}

/** Places a length where it wishes to be, pushed into the limits. */
float PlaceInside(float Wanted, float Length, float LimitStart, float LimitEnd)
{
	return FMath::Max(LimitStart, FMath::Min(Wanted, LimitEnd - Length));
}
}

FVector2D ComputePopupFitInRect(
	const FSlateRect& InAnchor, const FSlateRect& PopupRect, const EOrientation& Orientation, const FSlateRect& RectToFit)
{
	const FVector2D PopupSize = PopupRect.GetSize();
	if (Orientation == Orient_Vertical)
	{
		return FVector2D(PlaceInside(PopupRect.Left, PopupSize.X, RectToFit.Left, RectToFit.Right),
			PlaceBeside(InAnchor.Top, InAnchor.Bottom, PopupSize.Y, RectToFit.Top, RectToFit.Bottom));
	}
	const float Left = PlaceBeside(InAnchor.Left, InAnchor.Right, PopupSize.X, RectToFit.Left, RectToFit.Right);
	if (HasRoomBeside(InAnchor.Left, InAnchor.Right, PopupSize.X, RectToFit.Left, RectToFit.Right))
	{
		return FVector2D(Left, PlaceInside(PopupRect.Top, PopupSize.Y, RectToFit.Top, RectToFit.Bottom));
	}
	// Over its anchor a pop-up would hide what it came from: it goes below or above.
	return FVector2D(Left, PlaceBeside(InAnchor.Top, InAnchor.Bottom, PopupSize.Y, RectToFit.Top, RectToFit.Bottom));
}
