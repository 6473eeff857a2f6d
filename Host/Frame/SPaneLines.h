// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

// Lines over the window that show where one is.

namespace TintmillHost
{
/** A line around the pane that is worked in, and thin ones around the others; takes no input. */
class SPaneLines : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SPaneLines) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
};

/** A line around what the keyboard has been moved to; takes no input. */
class SFocusLine : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SFocusLine) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
};
}
