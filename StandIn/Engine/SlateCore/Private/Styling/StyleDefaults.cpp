// Copyright The Tintmill authors. All rights reserved.

#include "Styling/StyleDefaults.h"
#include "Brushes/SlateNoResource.h"

const FLinearColor& FStyleDefaults::GetColor()
{
	static const FLinearColor Color(1.0f, 1.0f, 1.0f, 1.0f);
	return Color;
}

FSlateColor FStyleDefaults::GetSlateColor()
{
	return FSlateColor(GetColor());
}

const FMargin& FStyleDefaults::GetMargin()
{
	static const FMargin Margin(0.0f);
	return Margin;
}

const FSlateFontInfo& FStyleDefaults::GetFontInfo()
{
	static const FSlateFontInfo Font(MakeShareable(new FCompositeFont()), 9, FName(TEXT("Regular")));
	return Font;
}

const FSlateBrush* FStyleDefaults::GetNoBrush()
{
	static const FSlateNoResource NoBrush;
	return &NoBrush;
}
