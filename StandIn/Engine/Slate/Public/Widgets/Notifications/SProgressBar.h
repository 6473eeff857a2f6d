// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

// A bar that shows how far something is.

/** A bar that shows how far something is, from left to right. */
class SLATE_API SProgressBar : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SProgressBar)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FProgressBarStyle>("ProgressBar"))
		, _FillColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	{}
	SLATE_STYLE_ARGUMENT(FProgressBarStyle, Style)
	SLATE_ATTRIBUTE(TOptional<float>, Percent)
	SLATE_ATTRIBUTE(FSlateColor, FillColorAndOpacity)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SProgressBar();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets how far it is, 0 to 1; unset if that is not known. */
	void SetPercent(TAttribute<TOptional<float>> InPercent) { Percent = InPercent; }

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	const FProgressBarStyle* Style;
	TAttribute<TOptional<float>> Percent;
	TAttribute<FSlateColor> FillColorAndOpacity;
};
