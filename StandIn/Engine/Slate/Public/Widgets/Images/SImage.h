// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateBrush.h"
#include "Widgets/SLeafWidget.h"

// A brush as a widget.

/** A brush as a widget. */
class SLATE_API SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage)
		: _Image(FCoreStyle::Get().GetDefaultBrush())
		, _ColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	{}
	SLATE_ATTRIBUTE(const FSlateBrush*, Image)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_EVENT(FPointerEventHandler, OnMouseButtonDown)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SImage();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets the brush; null draws nothing. */
	void SetImage(TAttribute<const FSlateBrush*> InImage) { Image = InImage; }

	/** Sets the colour that the brush is multiplied by. */
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity) { ColorAndOpacity = InColorAndOpacity; }

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TAttribute<const FSlateBrush*> Image;
	TAttribute<FSlateColor> ColorAndOpacity;
};
