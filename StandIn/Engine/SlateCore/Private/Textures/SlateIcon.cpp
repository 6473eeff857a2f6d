// Copyright The Tintmill authors. All rights reserved.

#include "Textures/SlateIcon.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

FSlateIcon::FSlateIcon()
	: bIsSet(false)
{}

FSlateIcon::FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
	: StyleSetName(InStyleSetName)
	, StyleName(InStyleName)
	, SmallStyleName(ISlateStyle::Join(InStyleName, ".Small"))
	, bIsSet(true)
{}

FSlateIcon::FSlateIcon(const FName& InStyleSetName, const FName& InStyleName, const FName& InSmallStyleName)
	: StyleSetName(InStyleSetName)
	, StyleName(InStyleName)
	, SmallStyleName(InSmallStyleName)
	, bIsSet(true)
{}

const FSlateBrush* FSlateIcon::GetSmallIcon() const
{
	const ISlateStyle* Style = GetStyleSet();
	return Style != nullptr ? Style->GetOptionalBrush(SmallStyleName) : FStyleDefaults::GetNoBrush();
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* Style = GetStyleSet();
	return Style != nullptr ? Style->GetOptionalBrush(StyleName) : FStyleDefaults::GetNoBrush();
}

const ISlateStyle* FSlateIcon::GetStyleSet() const
{
	return StyleSetName.IsNone() ? nullptr : FSlateStyleRegistry::FindSlateStyle(StyleSetName);
}
