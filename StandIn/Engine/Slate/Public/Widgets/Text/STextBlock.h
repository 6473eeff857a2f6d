// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Text/TextLayout.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

// A text that cannot be edited. Attach StandIn::FEllipsisMetaData to end lines that do not fit in an ellipsis. Left out:
// highlighted parts, strike-through, line height, shaping settings.

/** A text that cannot be edited. */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _Text()
		, _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
		, _WrapTextAt(0.0f)
		, _AutoWrapText(false)
		, _Margin(FMargin())
		, _Justification(ETextJustify::Left)
		, _MinDesiredWidth(0.0f)
	{
		_Clipping = EWidgetClipping::OnDemand;
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(FVector2D, ShadowOffset)
	SLATE_ATTRIBUTE(FLinearColor, ShadowColorAndOpacity)
	SLATE_ATTRIBUTE(FText, HighlightText)
	SLATE_ATTRIBUTE(float, WrapTextAt)
	SLATE_ATTRIBUTE(bool, AutoWrapText)
	SLATE_ATTRIBUTE(FMargin, Margin)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_EVENT(FOnClicked, OnDoubleClicked)
	SLATE_END_ARGS()

	/** Makes the widget. */
	STextBlock();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Returns the text. */
	const FText& GetText() const { return BoundText.Get(); }

	/** Sets the text. */
	void SetText(const TAttribute<FText>& InText) { BoundText = InText; }

	/** Sets the font. */
	void SetFont(const TAttribute<FSlateFontInfo>& InFont) { Font = InFont; }

	/** Sets the colour. */
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity) { ColorAndOpacity = InColorAndOpacity; }

	/** Sets the width at which lines are broken, 0 for none. */
	void SetWrapTextAt(const TAttribute<float>& InWrapTextAt) { WrapTextAt = InWrapTextAt; }

	/** Sets whether lines are broken at the widget's width. */
	void SetAutoWrapText(const TAttribute<bool>& InAutoWrapText) { AutoWrapText = InAutoWrapText; }

	/** Sets where lines lie. */
	void SetJustification(const TAttribute<ETextJustify::Type>& InJustification) { Justification = InJustification; }

	FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	FSlateFontInfo GetFont() const { return Font.IsSet() ? Font.Get() : Style->Font; }
	float GetWrapWidth() const;

	const FTextBlockStyle* Style;
	TAttribute<FText> BoundText;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<FVector2D> ShadowOffset;
	TAttribute<FLinearColor> ShadowColorAndOpacity;
	TAttribute<float> WrapTextAt;
	TAttribute<bool> AutoWrapText;
	TAttribute<FMargin> Margin;
	TAttribute<ETextJustify::Type> Justification;
	TAttribute<float> MinDesiredWidth;
	FOnClicked OnDoubleClicked;
	mutable float LastPaintedWidth;
};
