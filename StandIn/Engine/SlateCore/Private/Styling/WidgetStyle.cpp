// Copyright The Tintmill authors. All rights reserved.

#include "Styling/WidgetStyle.h"

const float FWidgetStyle::SubdueAmount = 0.6f;

FWidgetStyle::FWidgetStyle()
	: ColorAndOpacityTint(1.0f, 1.0f, 1.0f, 1.0f)
	, ForegroundColor(0.72f, 0.72f, 0.72f, 1.0f)
	, SubduedForeground(0.72f, 0.72f, 0.72f, SubdueAmount)
{}

FWidgetStyle& FWidgetStyle::BlendColorAndOpacityTint(const FLinearColor& InTint)
{
	ColorAndOpacityTint = ColorAndOpacityTint * InTint;
	return *this;
}

FWidgetStyle& FWidgetStyle::BlendOpacity(float InOpacity)
{
	ColorAndOpacityTint.A *= InOpacity;
	return *this;
}

FWidgetStyle& FWidgetStyle::SetForegroundColor(const TAttribute<FSlateColor>& InForeground)
{
	return SetForegroundColor(InForeground.Get());
}

FWidgetStyle& FWidgetStyle::SetForegroundColor(const FSlateColor& InForeground)
{
	ForegroundColor = InForeground.GetColor(*this);
	SubduedForeground = ForegroundColor;
	SubduedForeground.A *= SubdueAmount;
	return *this;
}
