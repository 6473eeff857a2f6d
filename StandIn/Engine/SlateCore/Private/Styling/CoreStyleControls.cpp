// Copyright The Tintmill authors. All rights reserved.

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"
#include "Styling/CoreStyleContent.h"
#include "Styling/SlateTypes.h"

namespace CoreStyleContent
{
namespace
{
using StandIn::EBrushShape;
using StandIn::FShapeBrush;

FSlateBrush Rounded(const FLinearColor& Color)
{
	return FShapeBrush(EBrushShape::RoundedBox, FVector2D(16.0f, 16.0f), Color, 4.0f);
}

FSlateBrush Icon(EBrushShape Shape, const FSlateColor& Color, float Size = 14.0f)
{
	return FShapeBrush(Shape, FVector2D(Size, Size), Color);
}

FCheckBoxStyle MakeCheckBox(EBrushShape Unchecked, EBrushShape Checked, EBrushShape Undetermined)
{
	const FSlateColor Normal = FSlateColor(GetForeground());
	const FSlateColor Hovered = FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	const FSlateColor Pressed = FSlateColor(GetInactiveSelection());
	return FCheckBoxStyle()
		.SetCheckBoxType(ESlateCheckBoxType::CheckBox)
		.SetUncheckedImage(Icon(Unchecked, Normal))
		.SetUncheckedHoveredImage(Icon(Unchecked, Hovered))
		.SetUncheckedPressedImage(Icon(Unchecked, Pressed))
		.SetCheckedImage(Icon(Checked, Normal))
		.SetCheckedHoveredImage(Icon(Checked, Hovered))
		.SetCheckedPressedImage(Icon(Checked, Pressed))
		.SetUndeterminedImage(Icon(Undetermined, Normal))
		.SetUndeterminedHoveredImage(Icon(Undetermined, Hovered))
		.SetUndeterminedPressedImage(Icon(Undetermined, Pressed));
}

void AddTextBoxes(FSlateStyleSet& Style)
{
	// Text boxes are light fields with dark text.
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 9);
	const FEditableTextStyle Editable = FEditableTextStyle()
											.SetFont(Font)
											.SetColorAndOpacity(FSlateColor::UseForeground())
											.SetBackgroundImageSelected(FSlateColorBrush(GetSelection()))
											.SetCaretImage(FSlateColorBrush(FSlateColor::UseForeground()));
	Style.Set("NormalEditableText", Editable);
	const FEditableTextBoxStyle TextBox =
		FEditableTextBoxStyle()
			.SetBackgroundImageNormal(FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0xB8B8B8), 3.0f))
			.SetBackgroundImageHovered(FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0xC8C8C8), 3.0f))
			.SetBackgroundImageFocused(FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0xD8D8D8), 3.0f))
			.SetBackgroundImageReadOnly(FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0x707070), 3.0f))
			.SetPadding(FMargin(4.0f, 2.0f))
			.SetFont(Font)
			.SetForegroundColor(FSlateColor(MakeColor(0x101010)))
			.SetReadOnlyForegroundColor(FSlateColor(MakeColor(0x202020)));
	Style.Set("NormalEditableTextBox", TextBox);
	Style.Set("SearchBox",
		FSearchBoxStyle()
			.SetTextBoxStyle(TextBox)
			.SetGlassImage(Icon(EBrushShape::Magnifier, FSlateColor(MakeColor(0x404040))))
			.SetClearImage(Icon(EBrushShape::Cross, FSlateColor(MakeColor(0x404040)))));
}

void AddLists(FSlateStyleSet& Style)
{
	const FSlateNoResource Nothing;
	const FSlateColorBrush Hover(FLinearColor(1.0f, 1.0f, 1.0f, 0.06f));
	Style.Set("TableView.Row",
		FTableRowStyle()
			.SetEvenRowBackgroundBrush(Nothing)
			.SetEvenRowBackgroundHoveredBrush(Hover)
			.SetOddRowBackgroundBrush(Nothing)
			.SetOddRowBackgroundHoveredBrush(Hover)
			.SetSelectorFocusedBrush(FShapeBrush(EBrushShape::RoundedFrame, FVector2D(8, 8), GetSelection(), 2.0f))
			.SetActiveBrush(FSlateColorBrush(GetSelection()))
			.SetActiveHoveredBrush(FSlateColorBrush(GetSelection()))
			.SetInactiveBrush(FSlateColorBrush(GetInactiveSelection()))
			.SetInactiveHoveredBrush(FSlateColorBrush(GetInactiveSelection()))
			.SetTextColor(FSlateColor(GetForeground()))
			.SetSelectedTextColor(FSlateColor(GetInvertedForeground())));
	const FSlateBrush Thumb = Rounded(MakeColor(0x6A6A6A));
	Style.Set("Scrollbar",
		FScrollBarStyle()
			.SetVerticalBackgroundImage(FSlateColorBrush(FLinearColor(0.0f, 0.0f, 0.0f, 0.15f)))
			.SetHorizontalBackgroundImage(FSlateColorBrush(FLinearColor(0.0f, 0.0f, 0.0f, 0.15f)))
			.SetNormalThumbImage(Thumb)
			.SetHoveredThumbImage(Rounded(MakeColor(0x8A8A8A)))
			.SetDraggedThumbImage(Rounded(MakeColor(0xAAAAAA))));
}
}

void AddControls(FSlateStyleSet& Style)
{
	const FButtonStyle Button = FButtonStyle()
									.SetNormal(Rounded(MakeColor(0x5A5A5A)))
									.SetHovered(Rounded(MakeColor(0x707070)))
									.SetPressed(Rounded(MakeColor(0x3A3A3A)))
									.SetDisabled(Rounded(MakeColor(0x484848)))
									.SetNormalPadding(FMargin(2.0f, 2.0f, 2.0f, 2.0f))
									.SetPressedPadding(FMargin(2.0f, 3.0f, 2.0f, 1.0f));
	Style.Set("Button", Button);
	const FSlateNoResource Nothing;
	Style.Set("NoBorder", FButtonStyle().SetNormal(Nothing).SetHovered(Nothing).SetPressed(Nothing).SetDisabled(Nothing));
	Style.Set("HoverHintOnly",
		FButtonStyle()
			.SetNormal(Nothing)
			.SetHovered(Rounded(FLinearColor(1.0f, 1.0f, 1.0f, 0.15f)))
			.SetPressed(Rounded(FLinearColor(1.0f, 1.0f, 1.0f, 0.25f)))
			.SetDisabled(Nothing));

	Style.Set("Checkbox", MakeCheckBox(EBrushShape::CheckBox, EBrushShape::CheckBoxTicked, EBrushShape::CheckBoxDashed));
	Style.Set("RadioButton", MakeCheckBox(EBrushShape::Ring, EBrushShape::RingDotted, EBrushShape::Ring));
	Style.Set("ToggleButtonCheckbox",
		FCheckBoxStyle()
			.SetCheckBoxType(ESlateCheckBoxType::ToggleButton)
			.SetUncheckedImage(Nothing)
			.SetUncheckedHoveredImage(Rounded(FLinearColor(1.0f, 1.0f, 1.0f, 0.15f)))
			.SetUncheckedPressedImage(Rounded(GetPressedSelection()))
			.SetCheckedImage(Rounded(GetPressedSelection()))
			.SetCheckedHoveredImage(Rounded(GetSelection()))
			.SetCheckedPressedImage(Rounded(GetPressedSelection()))
			.SetUndeterminedImage(Nothing)
			.SetUndeterminedHoveredImage(Nothing)
			.SetUndeterminedPressedImage(Nothing)
			.SetPadding(FMargin(0.0f)));

	AddTextBoxes(Style);
	AddLists(Style);

	Style.Set("ProgressBar",
		FProgressBarStyle()
			.SetBackgroundImage(Rounded(MakeColor(0x222222)))
			.SetFillImage(Rounded(GetSelection()))
			.SetMarqueeImage(Rounded(GetInactiveSelection())));
	Style.Set("Slider",
		FSliderStyle()
			.SetNormalBarImage(FSlateColorBrush(MakeColor(0x222222)))
			.SetNormalThumbImage(Rounded(MakeColor(0xA0A0A0)))
			.SetHoveredThumbImage(Rounded(MakeColor(0xD0D0D0))));
	Style.Set("Splitter",
		FSplitterStyle().SetHandleNormalBrush(Nothing).SetHandleHighlightBrush(FSlateColorBrush(FLinearColor(0.8f, 0.8f, 0.8f, 0.5f))));
	Style.Set("ComboButton",
		FComboButtonStyle()
			.SetButtonStyle(Button)
			.SetDownArrowImage(Icon(EBrushShape::TriangleDown, FSlateColor::UseForeground(), 8.0f))
			.SetMenuBorderBrush(FShapeBrush(EBrushShape::FramedBox, FVector2D(16, 16), MakeColor(0x383838)))
			.SetMenuBorderPadding(FMargin(1.0f)));
	Style.Set("Window",
		FWindowStyle()
			.SetBackgroundBrush(FSlateColorBrush(MakeColor(0x2B2B2B)))
			.SetBorderBrush(FShapeBrush(EBrushShape::RoundedFrame, FVector2D(16, 16), MakeColor(0x101010)))
			.SetTitleTextStyle(Style.GetWidgetStyle<FTextBlockStyle>("NormalText")));

	Style.Set("ToolTip.Background", new FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0x1B1B1B), 3.0f));
	Style.Set("ToolTip.BrightBackground", new FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0xE4E4E4), 3.0f));
	Style.Set("ToolTip.Font", FCoreStyle::GetDefaultFontStyle("Regular", 9));
	Style.Set("NotificationList.ItemBackground", new FShapeBrush(EBrushShape::RoundedBox, FVector2D(16, 16), MakeColor(0x383838), 4.0f));
}
}
