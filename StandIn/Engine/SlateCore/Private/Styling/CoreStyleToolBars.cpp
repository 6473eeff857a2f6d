// Copyright The Tintmill authors. All rights reserved.

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"
#include "Styling/CoreStyleContent.h"
#include "Styling/SlateTypes.h"

namespace CoreStyleContent
{
void AddToolBars(FSlateStyleSet& Style)
{
	using StandIn::EBrushShape;
	using StandIn::FShapeBrush;

	const FSlateNoResource Nothing;
	const FShapeBrush Selected(EBrushShape::RoundedBox, FVector2D(16, 16), GetSelection(), 4.0f);
	const FShapeBrush Pressed(EBrushShape::RoundedBox, FVector2D(16, 16), GetPressedSelection(), 4.0f);
	const FTextBlockStyle NormalText = Style.GetWidgetStyle<FTextBlockStyle>("NormalText");

	Style.Set("WindowMenuBar.Background", new FSlateNoResource());
	Style.Set("WindowMenuBar.Padding", FMargin(0.0f));
	Style.Set("WindowMenuBar.Block.Padding", FMargin(8.0f, 2.0f, 8.0f, 3.0f));
	Style.Set("WindowMenuBar.Label", FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 9)));
	Style.Set("WindowMenuBar.Button", FButtonStyle().SetNormal(Nothing).SetHovered(Selected).SetPressed(Pressed).SetDisabled(Nothing));

	Style.Set("ViewportToolBar.Maximize", new FShapeBrush(EBrushShape::Maximize, FVector2D(14, 14), FSlateColor(GetForeground())));
	Style.Set("ViewportToolBar.Restore", new FShapeBrush(EBrushShape::FourPanes, FVector2D(14, 14), FSlateColor(GetForeground())));

	const FButtonStyle Button = FButtonStyle()
									.SetNormal(Nothing)
									.SetHovered(Selected)
									.SetPressed(Pressed)
									.SetDisabled(Nothing)
									.SetNormalPadding(FMargin(0.0f))
									.SetPressedPadding(FMargin(0.0f, 1.0f, 0.0f, -1.0f));
	Style.Set("ToolBar.Background", new FSlateNoResource());
	Style.Set("ToolBar.Padding", FMargin(0.0f));
	Style.Set("ToolBar.Block.Padding", FMargin(4.0f, 2.0f, 4.0f, 3.0f));
	Style.Set("ToolBar.Label", FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 9)));
	Style.Set("ToolBar.Button", Button);
	Style.Set("ToolBar.Checked", new FShapeBrush(Pressed));
	Style.Set("ToolBar.ComboButton",
		FComboButtonStyle()
			.SetButtonStyle(Button)
			.SetDownArrowImage(FShapeBrush(EBrushShape::TriangleDown, FVector2D(8, 8), FSlateColor::UseForeground()))
			.SetMenuBorderBrush(Nothing)
			.SetMenuBorderPadding(FMargin(0.0f)));
}
}
