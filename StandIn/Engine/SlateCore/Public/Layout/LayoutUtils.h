// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Geometry.h"
#include "Layout/Margin.h"
#include "Layout/SlateRect.h"
#include "Types/SlateEnums.h"

// Arithmetic of arranging. Left out: layout mirrored for right-to-left languages.

/** Offset and size of a child along one axis. */
struct AlignmentArrangeResult
{
	/** Makes a result. */
	AlignmentArrangeResult(float InOffset, float InSize)
		: Offset(InOffset)
		, Size(InSize)
	{}

	/** Offset from the start of the slot. */
	float Offset;

	/** Size along the axis. */
	float Size;
};

/** Places a child of a desired size in a length: Alignment 0 fills, 1 leads, 2 centres, 3 trails. */
inline AlignmentArrangeResult AlignChildAlong(
	int32 Alignment, float AllottedSize, float ChildDesiredSize, float LeadingPadding, float TrailingPadding, bool bClampToParent)
{
	const float Available = FMath::Max(AllottedSize - LeadingPadding - TrailingPadding, 0.0f);
	if (Alignment == 0)
	{
		return AlignmentArrangeResult(LeadingPadding, Available);
	}
	const float ChildSize = bClampToParent ? FMath::Min(ChildDesiredSize, Available) : ChildDesiredSize;
	switch (Alignment)
	{
	case 2:
		return AlignmentArrangeResult((AllottedSize - ChildSize) / 2.0f + LeadingPadding / 2.0f - TrailingPadding / 2.0f, ChildSize);
	case 3:
		return AlignmentArrangeResult(AllottedSize - ChildSize - TrailingPadding, ChildSize);
	default:
		return AlignmentArrangeResult(LeadingPadding, ChildSize);
	}
}

/** Places a slot's child along one axis by the slot's alignment; sizes are in the panel's space. */
template <EOrientation Orientation, typename SlotType>
AlignmentArrangeResult AlignChild(float AllottedSize, const SlotType& ChildToArrange, const FMargin& SlotPadding,
	const float& ContentScale = 1.0f, bool bClampToParent = true)
{
	const FMargin Margin = SlotPadding;
	const FVector2D ChildDesiredSize = ChildToArrange.GetWidget()->GetDesiredSize() * ContentScale;
	return Orientation == Orient_Horizontal ? AlignChildAlong(
			   static_cast<int32>(ChildToArrange.HAlignment), AllottedSize, ChildDesiredSize.X, Margin.Left, Margin.Right, bClampToParent)
											: AlignChildAlong(static_cast<int32>(ChildToArrange.VAlignment), AllottedSize,
												ChildDesiredSize.Y, Margin.Top, Margin.Bottom, bClampToParent);
}

/** Places a pop-up of a size beside an anchor so that it stays in a work area; flips to the anchor's other side where it does not fit. */
SLATECORE_API FVector2D ComputePopupFitInRect(
	const FSlateRect& InAnchor, const FSlateRect& PopupRect, const EOrientation& Orientation, const FSlateRect& RectToFit);
