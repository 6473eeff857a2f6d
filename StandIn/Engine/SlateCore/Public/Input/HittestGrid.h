// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/SlateRect.h"

class SWidget;

// Which widget lies under a point: a list of what was painted last, searched from the top. Left out: cells, cursor radius,
// navigation by grid.

/** What a window painted last, to be asked for the widget under a point. */
class SLATECORE_API FHittestGrid
{
public:
	/** Forgets everything. */
	void Clear();

	/** Notes a painted widget; bIsHittable false for one that only parents others. Returns the note's index for its children. */
	int32 AddWidget(const TSharedRef<SWidget>& InWidget, int32 ParentIndex, const FGeometry& InGeometry, const FSlateRect& InClipRect,
		int32 InLayerId, bool bIsHittable);

	/** Returns the path from the window to the topmost widget under a desktop point, cut off above the first disabled widget
	    unless the enabled status is to be ignored; empty if there is none. */
	TArray<FArrangedWidget> GetBubblePath(const FVector2D& DesktopSpaceCoordinate, bool bIgnoreEnabledStatus) const;

	/** Returns the number of widgets noted. */
	int32 Num() const { return Records.Num(); }

private:
	struct FRecord
	{
		TWeakPtr<SWidget> Widget;
		int32 ParentIndex;
		FGeometry Geometry;
		FSlateRect ClipRect;
		int32 LayerId;
		bool bIsHittable;
	};

	TArray<FRecord> Records;
};
