// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/PaintGeometry.h"
#include "Layout/SlateRect.h"
#include "Rendering/SlateLayoutTransform.h"

class FArrangedWidget;
class SWidget;

// Where a widget lies and how large it is. Absolute space is the desktop's; windows have no space of their own here.
// Left out: render transforms and pivots.

/** A widget's place: its size in its own space and the transform from there to the desktop. */
struct SLATECORE_API FGeometry
{
	/** Makes a geometry of no size at the origin. */
	FGeometry();

	/** Copies a geometry. */
	FGeometry(const FGeometry& RHS);

	/** Copies a geometry. */
	FGeometry& operator=(const FGeometry& RHS);

	/** Makes a geometry of an offset in the parent, the parent's absolute position, a local size and an absolute scale. */
	FGeometry(const FVector2D& OffsetFromParent, const FVector2D& ParentAbsolutePosition, const FVector2D& InLocalSize, float InScale);

	/** Compares size and transform. */
	bool operator==(const FGeometry& Other) const;

	/** Compares size and transform. */
	bool operator!=(const FGeometry& Other) const { return !(*this == Other); }

	/** Makes the geometry of a window: a size in Slate units and the transform to the desktop. */
	static FGeometry MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform);

	/** Makes a child geometry of a local size and the transform from the child's space to this one. */
	FGeometry MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;

	/** Makes a child geometry of an offset, a size and a scale, offset and size in this space and the child's own. */
	FGeometry MakeChild(const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale = 1.0f) const;

	/** Arranges a child widget at an offset with a size and a scale. */
	FArrangedWidget MakeChild(
		const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale = 1.0f) const;

	/** Arranges a child widget by a transform. */
	FArrangedWidget MakeChild(
		const TSharedRef<SWidget>& ChildWidget, const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;

	/** Returns the geometry in the form that draw elements take. */
	FPaintGeometry ToPaintGeometry() const;

	/** Returns the draw geometry of a part of this one. */
	FPaintGeometry ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const;

	/** Returns the draw geometry of a part of this one: offset, size and scale. */
	FPaintGeometry ToPaintGeometry(const FVector2D& InLocalOffset, const FVector2D& InLocalSize, float InLocalScale = 1.0f) const;

	/** Returns the draw geometry moved by an offset and of the same size. */
	FPaintGeometry ToOffsetPaintGeometry(const FVector2D& InLocalOffset) const;

	/** Says whether an absolute point lies on the widget. */
	bool IsUnderLocation(const FVector2D& AbsoluteCoordinate) const;

	/** Moves an absolute point into the widget's space. */
	FVector2D AbsoluteToLocal(FVector2D AbsoluteCoordinate) const;

	/** Moves a point of the widget's space to the desktop. */
	FVector2D LocalToAbsolute(FVector2D LocalCoordinate) const;

	/** Returns the rectangle covered on the desktop. */
	FSlateRect GetLayoutBoundingRect() const;

	/** Returns the rectangle covered by a part of the widget. */
	FSlateRect GetLayoutBoundingRect(const FSlateRect& LocalRect) const;

	/** Returns the rectangle covered, as drawn; equal to the layout rectangle without render transforms. */
	FSlateRect GetRenderBoundingRect() const { return GetLayoutBoundingRect(); }

	/** Returns the size in the widget's own space. */
	const FVector2D& GetLocalSize() const { return Size; }

	/** Returns the size on the desktop. */
	FVector2D GetAbsoluteSize() const { return Size * Scale; }

	/** Returns the size on the desktop. */
	FVector2D GetDrawSize() const { return Size * Scale; }

	/** Returns the upper left corner on the desktop. */
	FVector2D GetAbsolutePosition() const { return AbsolutePosition; }

	/** Returns a point of the widget on the desktop, given in parts of its size. */
	FVector2D GetAbsolutePositionAtCoordinates(const FVector2D& NormalCoordinates) const;

	/** Returns the transform from the widget's space to the desktop. */
	FSlateLayoutTransform GetAccumulatedLayoutTransform() const { return FSlateLayoutTransform(Scale, AbsolutePosition); }

	/** Returns size and place as text. */
	FString ToString() const;

	/** Size in the widget's own space. */
	const FVector2D Size;

	/** Scale from the widget's space to the desktop. */
	const float Scale;

	/** Upper left corner on the desktop. */
	const FVector2D AbsolutePosition;

	/** Offset in the parent, in the parent's space. */
	const FVector2D Position;

private:
	FGeometry(const FVector2D& InLocalSize, const FVector2D& InPosition, const FSlateLayoutTransform& Accumulated);
};
