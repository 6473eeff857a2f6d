// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

// The base of widgets made of other widgets.

/** The base of widgets that put one other widget, usually a tree of them, into their slot. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	/** Returns the scale of the content. */
	FVector2D GetContentScale() const { return ContentScale.Get(); }

	/** Sets the scale of the content. */
	void SetContentScale(const TAttribute<FVector2D>& InContentScale) { ContentScale = InContentScale; }

	/** Returns the colour that everything in the widget is multiplied by. */
	FLinearColor GetColorAndOpacity() const { return ColorAndOpacity.Get(); }

	/** Sets the colour that everything in the widget is multiplied by. */
	void SetColorAndOpacity(const TAttribute<FLinearColor>& InColorAndOpacity) { ColorAndOpacity = InColorAndOpacity; }

	/** Sets the foreground colour that children shall use. */
	void SetForegroundColor(const TAttribute<FSlateColor>& InForegroundColor) { ForegroundColor = InForegroundColor; }

	FChildren* GetChildren() override;
	FSlateColor GetForegroundColor() const override;

protected:
	SCompoundWidget();

	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

	/** The slot that holds the content. */
	FSimpleSlot ChildSlot;

	/** Scale of the content. */
	TAttribute<FVector2D> ContentScale;

	/** Colour that everything is multiplied by. */
	TAttribute<FLinearColor> ColorAndOpacity;

	/** Foreground colour of children. */
	TAttribute<FSlateColor> ForegroundColor;
};
