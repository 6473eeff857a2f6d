// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

// The picture on a tile: an asset's own thumbnail or that of its class, the strip in its type's color, a mark on what cannot be
// used; or a folder.

namespace TintmillHost
{
/** The picture on a tile. */
class SThumbnail : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SThumbnail) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_ARGUMENT(FContentItemPtr, Item)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	void PaintClass(const FGeometry& Geometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, float Edge) const;

	FContentItemPtr Item;
};
}
