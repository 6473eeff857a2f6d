// Copyright The Tintmill authors. All rights reserved.

#include "Styling/CoreStyleContent.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"

namespace CoreStyleContent
{
FLinearColor GetForeground()
{
	return FLinearColor(0.72f, 0.72f, 0.72f, 1.0f);
}

FLinearColor GetInvertedForeground()
{
	return FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);
}

FLinearColor GetSelection()
{
	return FLinearColor(0.728f, 0.364f, 0.003f, 1.0f);
}

FLinearColor GetPressedSelection()
{
	return FLinearColor(0.701f, 0.225f, 0.003f, 1.0f);
}

FLinearColor GetInactiveSelection()
{
	return FLinearColor(0.25f, 0.25f, 0.25f, 1.0f);
}

FLinearColor MakeColor(uint32 Rgb, float Alpha)
{
	FLinearColor Color(FColor(static_cast<uint8>(Rgb >> 16), static_cast<uint8>(Rgb >> 8), static_cast<uint8>(Rgb), 255));
	Color.A = Alpha;
	return Color;
}

void AddBasics(FSlateStyleSet& Style)
{
	using StandIn::EBrushShape;
	using StandIn::FShapeBrush;

	Style.Set("DefaultForeground", FSlateColor(GetForeground()));
	Style.Set("InvertedForeground", FSlateColor(GetInvertedForeground()));
	Style.Set("SelectionColor", FSlateColor(GetSelection()));
	Style.Set("SelectionColor_Pressed", FSlateColor(GetPressedSelection()));
	Style.Set("SelectionColor_Inactive", FSlateColor(GetInactiveSelection()));
	Style.Set("SelectionColor_Subdued", FSlateColor(FLinearColor(0.807f, 0.596f, 0.388f)));

	const FSlateFontInfo NormalFont = FCoreStyle::GetDefaultFontStyle("Regular", 9);
	const FSlateFontInfo SmallFont = FCoreStyle::GetDefaultFontStyle("Regular", 8);
	Style.Set("NormalFont", NormalFont);
	Style.Set("SmallFont", SmallFont);
	Style.Set("BoldFont", FCoreStyle::GetDefaultFontStyle("Bold", 10));
	Style.Set("MonoFont", FCoreStyle::GetDefaultFontStyle("Mono", 9));

	const FTextBlockStyle NormalText = FTextBlockStyle()
										   .SetFont(NormalFont)
										   .SetColorAndOpacity(FSlateColor::UseForeground())
										   .SetSelectedBackgroundColor(FSlateColor(GetSelection()))
										   .SetHighlightColor(FLinearColor(0.02f, 0.3f, 0.0f, 1.0f))
										   .SetHighlightShape(FSlateColorBrush(GetPressedSelection()));
	Style.Set("NormalText", NormalText);
	Style.Set("SmallText", FTextBlockStyle(NormalText).SetFont(SmallFont));
	Style.Set("BoldText", FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle("Bold", 10)));
	Style.Set("NormalText.Subdued", FTextBlockStyle(NormalText).SetColorAndOpacity(FSlateColor::UseSubduedForeground()));
	Style.Set("NormalText.Overlay",
		FTextBlockStyle(NormalText).SetShadowOffset(FVector2D(1.0f, 1.0f)).SetShadowColorAndOpacity(FLinearColor(0.0f, 0.0f, 0.0f, 0.8f)));

	Style.Set("NoBrush", new FSlateNoResource());
	Style.Set("WhiteBrush", new FSlateColorBrush(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)));
	Style.Set("BlackBrush", new FSlateColorBrush(FLinearColor(0.0f, 0.0f, 0.0f, 1.0f)));
	Style.Set("GenericWhiteBox", new FSlateColorBrush(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)));
	Style.Set("Checkerboard", new FShapeBrush(EBrushShape::Checkerboard, FVector2D(16, 16), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)));
	Style.Set("Checker", new FShapeBrush(EBrushShape::Checkerboard, FVector2D(16, 16), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)));
	Style.Set("Border", new FShapeBrush(EBrushShape::FramedBox, FVector2D(16, 16), MakeColor(0x383838)));
	Style.Set("FocusRectangle", new FShapeBrush(EBrushShape::RoundedFrame, FVector2D(16, 16), FLinearColor(1.0f, 1.0f, 1.0f, 0.5f), 2.0f));
	Style.Set("ToolPanel.GroupBorder", new FSlateColorBrush(MakeColor(0x3E3E3E)));
	Style.Set("ToolPanel.DarkGroupBorder", new FSlateColorBrush(MakeColor(0x333333)));
	Style.Set("Separator", new FSlateColorBrush(MakeColor(0x1E1E1E)));
	Style.Set("Icons.Cross", new FShapeBrush(EBrushShape::Cross, FVector2D(16, 16), FSlateColor::UseForeground()));
	Style.Set("Icons.Search", new FShapeBrush(EBrushShape::Magnifier, FVector2D(16, 16), FSlateColor::UseForeground()));
}
}
