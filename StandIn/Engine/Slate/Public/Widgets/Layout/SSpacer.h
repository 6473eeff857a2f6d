// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/SLeafWidget.h"

// Empty space of a size.

/** Empty space of a size. */
class SLATE_API SSpacer : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SSpacer)
		: _Size(FVector2D(0.0f, 0.0f))
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_ATTRIBUTE(FVector2D, Size)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets the size, in Slate units. */
	void SetSize(TAttribute<FVector2D> InSpacerSize) { SpacerSize = InSpacerSize; }

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TAttribute<FVector2D> SpacerSize;
};
