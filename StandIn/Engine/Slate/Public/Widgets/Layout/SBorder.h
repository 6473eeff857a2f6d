// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateBrush.h"
#include "Widgets/SCompoundWidget.h"

// A brush behind a widget.

/** A brush behind a widget. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _BorderImage(FCoreStyle::Get().GetBrush("Border"))
		, _ContentScale(FVector2D(1.0f, 1.0f))
		, _DesiredSizeScale(FVector2D(1.0f, 1.0f))
		, _ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
		, _BorderBackgroundColor(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _ForegroundColor(FSlateColor::UseForeground())
		, _ShowEffectWhenDisabled(true)
	{}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_EVENT(FPointerEventHandler, OnMouseButtonDown)
	SLATE_EVENT(FPointerEventHandler, OnMouseButtonUp)
	SLATE_EVENT(FPointerEventHandler, OnMouseMove)
	SLATE_EVENT(FPointerEventHandler, OnMouseDoubleClick)
	SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	SLATE_ATTRIBUTE(FVector2D, ContentScale)
	SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
	SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ATTRIBUTE(bool, ShowEffectWhenDisabled)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SBorder();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Puts a widget into the border. */
	void SetContent(TSharedRef<SWidget> InContent);

	/** Returns the widget in the border. */
	const TSharedRef<SWidget>& GetContent() const { return ChildSlot.GetWidget(); }

	/** Takes the widget out. */
	void ClearContent();

	/** Sets the colour that the brush is multiplied by. */
	void SetBorderBackgroundColor(const TAttribute<FSlateColor>& InColorAndOpacity) { BorderBackgroundColor = InColorAndOpacity; }

	/** Sets the brush. */
	void SetBorderImage(const TAttribute<const FSlateBrush*>& InBorderImage) { BorderImage = InBorderImage; }

	/** Sets the space around the content. */
	void SetPadding(const TAttribute<FMargin>& InPadding) { ChildSlot.Padding(InPadding); }

	/** Sets where the content lies along the horizontal. */
	void SetHAlign(EHorizontalAlignment HAlign) { ChildSlot.HAlignment = HAlign; }

	/** Sets where the content lies along the vertical. */
	void SetVAlign(EVerticalAlignment VAlign) { ChildSlot.VAlignment = VAlign; }

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

	/** The brush. */
	TAttribute<const FSlateBrush*> BorderImage;

	/** The colour that the brush is multiplied by. */
	TAttribute<FSlateColor> BorderBackgroundColor;

	/** What the desired size is multiplied by. */
	TAttribute<FVector2D> DesiredSizeScale;

	/** Whether the brush looks disabled with the widget. */
	TAttribute<bool> ShowDisabledEffect;
};
