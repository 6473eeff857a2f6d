// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateColor.h"
#include "Styling/WidgetStyle.h"

FSlateColor::FSlateColor()
	: SpecifiedColor(1.0f, 0.0f, 1.0f, 1.0f)
	, ColorUseRule(EColorRule::Specified)
{}

FSlateColor::FSlateColor(const FLinearColor& InColor)
	: SpecifiedColor(InColor)
	, ColorUseRule(EColorRule::Specified)
{}

FSlateColor::FSlateColor(const TSharedRef<FLinearColor>& InColor)
	: SpecifiedColor(*InColor)
	, ColorUseRule(EColorRule::Linked)
	, LinkedColor(InColor)
{}

const FLinearColor& FSlateColor::GetColor(const FWidgetStyle& InWidgetStyle) const
{
	switch (ColorUseRule)
	{
	case EColorRule::Foreground:
		return InWidgetStyle.GetForegroundColor();
	case EColorRule::ForegroundSubdued:
		return InWidgetStyle.GetSubduedForegroundColor();
	case EColorRule::Linked:
		return *LinkedColor;
	default:
		return SpecifiedColor;
	}
}

FLinearColor FSlateColor::GetSpecifiedColor() const
{
	return ColorUseRule == EColorRule::Linked ? *LinkedColor : SpecifiedColor;
}

FSlateColor FSlateColor::UseForeground()
{
	FSlateColor Color;
	Color.ColorUseRule = EColorRule::Foreground;
	return Color;
}

FSlateColor FSlateColor::UseSubduedForeground()
{
	FSlateColor Color;
	Color.ColorUseRule = EColorRule::ForegroundSubdued;
	return Color;
}

bool FSlateColor::operator==(const FSlateColor& Other) const
{
	return ColorUseRule == Other.ColorUseRule && SpecifiedColor == Other.SpecifiedColor && LinkedColor == Other.LinkedColor;
}
