// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"

// How drawing is cut off. Zones are upright rectangles here, as there are no rotated widgets; stencils are left out.

/** How a widget cuts off what it and its children draw. */
enum class EWidgetClipping : uint8
{
	Inherit,
	ClipToBounds,
	ClipToBoundsWithoutIntersecting,
	ClipToBoundsAlways,
	OnDemand
};

/** A rectangle of the desktop outside of which nothing is drawn. */
class FSlateClippingZone
{
public:
	/** Makes a zone of a rectangle. */
	explicit FSlateClippingZone(const FSlateRect& AxisAlignedRect)
		: Rect(AxisAlignedRect)
	{}

	/** Makes a zone of a widget's geometry. */
	explicit FSlateClippingZone(const FGeometry& BoundingGeometry)
		: Rect(BoundingGeometry.GetLayoutBoundingRect())
	{}

	/** Makes a zone of a draw geometry. */
	explicit FSlateClippingZone(const FPaintGeometry& PaintingGeometry)
		: Rect(FSlateRect::FromPointAndExtent(PaintingGeometry.DrawPosition, PaintingGeometry.GetDrawSize()))
	{}

	/** Says whether zones pushed inside it are cut to it. */
	bool GetShouldIntersectParent() const { return bIntersect; }

	/** Sets whether the zone is cut to the one it is pushed into. */
	void SetShouldIntersectParent(bool bInValue) { bIntersect = bInValue; }

	/** Says whether the zone is applied even where others are skipped. */
	bool GetAlwaysClip() const { return bAlwaysClip; }

	/** Sets whether the zone is applied even inside zones that do not intersect. */
	void SetAlwaysClip(bool bInValue) { bAlwaysClip = bInValue; }

	/** Returns the rectangle. */
	FSlateRect GetBoundingBox() const { return Rect; }

	/** Says whether a point lies inside. */
	bool IsPointInside(const FVector2D& Point) const { return Rect.ContainsPoint(Point); }

private:
	FSlateRect Rect;
	bool bIntersect = true;
	bool bAlwaysClip = false;
};
