// Copyright The Tintmill authors. All rights reserved.

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"
#include "Styling/CoreStyleContent.h"
#include "Styling/SlateTypes.h"

namespace CoreStyleContent
{
void AddMenus(FSlateStyleSet& Style)
{
	using StandIn::EBrushShape;
	using StandIn::FShapeBrush;

	const FSlateNoResource Nothing;
	const FShapeBrush Selected(EBrushShape::RoundedBox, FVector2D(16, 16), GetSelection(), 4.0f);
	const FShapeBrush Pressed(EBrushShape::RoundedBox, FVector2D(16, 16), GetPressedSelection(), 4.0f);

	Style.Set("Menu.Background", new FShapeBrush(EBrushShape::FramedBox, FVector2D(16, 16), MakeColor(0x383838)));
	Style.Set("Menu.Shadow", new FShapeBrush(EBrushShape::Shadow, FVector2D(8, 8), FLinearColor(0.0f, 0.0f, 0.0f, 0.5f)));
	Style.Set("Menu.Icon", new FSlateNoResource(FVector2D(16, 16)));
	Style.Set("Menu.Separator", new FSlateColorBrush(MakeColor(0x555555)));
	Style.Set("Menu.Separator.Padding", FMargin(0.5f));
	Style.Set("Menu.Block.Padding", FMargin(2.0f, 2.0f, 4.0f, 4.0f));
	Style.Set("Menu.Block.IndentedPadding", FMargin(18.0f, 2.0f, 4.0f, 4.0f));
	Style.Set("Menu.SubMenuIndicator", new FShapeBrush(EBrushShape::TriangleRight, FVector2D(8, 8), FSlateColor::UseForeground()));
	Style.Set("Menu.Expand", new FShapeBrush(EBrushShape::TriangleDown, FVector2D(16, 16), FSlateColor::UseForeground()));

	const FTextBlockStyle NormalText = Style.GetWidgetStyle<FTextBlockStyle>("NormalText");
	Style.Set("Menu.Label", FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 9)));
	Style.Set("Menu.Keybinding", FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 8)));
	Style.Set("Menu.Heading",
		FTextBlockStyle(NormalText)
			.SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 8))
			.SetColorAndOpacity(FSlateColor(FLinearColor(0.4f, 0.4f, 0.4f, 1.0f))));
	Style.Set("Menu.Heading.Padding", FMargin(4.0f, 0.0f));
	Style.Set("Menu.EditableText", Style.GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"));

	const FCheckBoxStyle CheckBox = Style.GetWidgetStyle<FCheckBoxStyle>("Checkbox");
	Style.Set("Menu.CheckBox", CheckBox);
	Style.Set("Menu.ToggleButton", CheckBox);
	Style.Set("Menu.RadioButton", Style.GetWidgetStyle<FCheckBoxStyle>("RadioButton"));
	const FShapeBrush Tick(EBrushShape::Tick, FVector2D(14, 14), FSlateColor::UseForeground());
	const FSlateNoResource NoTick(FVector2D(14, 14));
	Style.Set("Menu.Check",
		FCheckBoxStyle()
			.SetUncheckedImage(NoTick)
			.SetUncheckedHoveredImage(NoTick)
			.SetUncheckedPressedImage(NoTick)
			.SetCheckedImage(Tick)
			.SetCheckedHoveredImage(Tick)
			.SetCheckedPressedImage(Tick)
			.SetUndeterminedImage(NoTick)
			.SetUndeterminedHoveredImage(NoTick)
			.SetUndeterminedPressedImage(NoTick));

	const FButtonStyle MenuButton = FButtonStyle()
										.SetNormal(Nothing)
										.SetHovered(Selected)
										.SetPressed(Pressed)
										.SetDisabled(Nothing)
										.SetNormalPadding(FMargin(0.0f, 1.0f))
										.SetPressedPadding(FMargin(0.0f, 2.0f, 0.0f, 0.0f));
	Style.Set("Menu.Button", MenuButton);
	Style.Set("Menu.Button.Checked", FButtonStyle(MenuButton).SetNormal(Pressed));
	Style.Set("Menu.Button.SubMenuOpen", FButtonStyle(MenuButton).SetNormal(Selected));

	// View modes, in the engine under these names in the editor's style.
	const struct
	{
		const ANSICHAR* Name;
		EBrushShape Shape;
	} ViewModes[] = {
		{"EditorViewport.LitMode", EBrushShape::ViewLit},
		{"EditorViewport.UnlitMode", EBrushShape::ViewUnlit},
		{"EditorViewport.BrushWireframeMode", EBrushShape::ViewWireframe},
		{"EditorViewport.DetailLightingMode", EBrushShape::ViewDetailLighting},
		{"EditorViewport.LightingOnlyMode", EBrushShape::ViewLightingOnly},
		{"EditorViewport.ReflectionOverrideMode", EBrushShape::ViewReflections},
		{"EditorViewport.QuadOverdrawMode", EBrushShape::ViewOptimization},
		{"EditorViewport.VisualizeBufferMode", EBrushShape::ViewBuffers},
		{"EditorViewport.LODColorationMode", EBrushShape::ViewLevelOfDetail},
		{"EditorViewport.CollisionPawn", EBrushShape::ViewPlayerCollision},
		{"EditorViewport.CollisionVisibility", EBrushShape::ViewVisibilityCollision},
	};
	for (const auto& Mode : ViewModes)
	{
		Style.Set(Mode.Name, new FShapeBrush(Mode.Shape, FVector2D(16, 16), FLinearColor::White));
	}

	// Tool bars that float over a viewport.
	const FLinearColor Glass = MakeColor(0x202020, 0.7f);
	const FShapeBrush ToolBarButton(EBrushShape::RoundedBox, FVector2D(16, 16), Glass, 4.0f);
	const FShapeBrush HoveredToolBarButton(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0x5A5A5A, 0.85f), 4.0f);
	Style.Set("ViewportToolBar.Button",
		FButtonStyle().SetNormal(ToolBarButton).SetHovered(HoveredToolBarButton).SetPressed(Pressed).SetDisabled(ToolBarButton));
	Style.Set("ViewportToolBar.Text",
		FTextBlockStyle(NormalText)
			.SetColorAndOpacity(FSlateColor(GetForeground()))
			.SetShadowOffset(FVector2D(1.0f, 1.0f))
			.SetShadowColorAndOpacity(FLinearColor(0.0f, 0.0f, 0.0f, 0.6f)));
}
}
