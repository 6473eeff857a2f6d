// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateTypes.h"

// Every style type has its name and a default instance.
#define STANDIN_STYLE_BASICS(StyleType) \
	const FName StyleType::TypeName(TEXT(#StyleType)); \
	const StyleType& StyleType::GetDefault() \
	{ \
		static const StyleType Default; \
		return Default; \
	}

STANDIN_STYLE_BASICS(FTextBlockStyle)
STANDIN_STYLE_BASICS(FButtonStyle)
STANDIN_STYLE_BASICS(FCheckBoxStyle)
STANDIN_STYLE_BASICS(FEditableTextStyle)
STANDIN_STYLE_BASICS(FScrollBarStyle)
STANDIN_STYLE_BASICS(FEditableTextBoxStyle)
STANDIN_STYLE_BASICS(FSearchBoxStyle)
STANDIN_STYLE_BASICS(FProgressBarStyle)
STANDIN_STYLE_BASICS(FSliderStyle)
STANDIN_STYLE_BASICS(FSplitterStyle)
STANDIN_STYLE_BASICS(FTableRowStyle)
STANDIN_STYLE_BASICS(FComboButtonStyle)
STANDIN_STYLE_BASICS(FWindowStyle)

FTextBlockStyle::FTextBlockStyle()
	: ColorAndOpacity(FSlateColor::UseForeground())
	, ShadowOffset(0.0f, 0.0f)
	, ShadowColorAndOpacity(0.0f, 0.0f, 0.0f, 1.0f)
	, HighlightColor(0.0f, 0.0f, 0.0f, 1.0f)
{}

void FTextBlockStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&HighlightShape);
}

FButtonStyle::FButtonStyle() {}

void FButtonStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&Normal);
	OutBrushes.Add(&Hovered);
	OutBrushes.Add(&Pressed);
	OutBrushes.Add(&Disabled);
}

FCheckBoxStyle::FCheckBoxStyle()
	: CheckBoxType(ESlateCheckBoxType::CheckBox)
	, Padding(FMargin(2.0f, 0.0f, 0.0f, 0.0f))
	, ForegroundColor(FSlateColor::UseForeground())
	, BorderBackgroundColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
{}

void FCheckBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&UncheckedImage);
	OutBrushes.Add(&UncheckedHoveredImage);
	OutBrushes.Add(&UncheckedPressedImage);
	OutBrushes.Add(&CheckedImage);
	OutBrushes.Add(&CheckedHoveredImage);
	OutBrushes.Add(&CheckedPressedImage);
	OutBrushes.Add(&UndeterminedImage);
	OutBrushes.Add(&UndeterminedHoveredImage);
	OutBrushes.Add(&UndeterminedPressedImage);
}

FEditableTextStyle::FEditableTextStyle()
	: ColorAndOpacity(FSlateColor::UseForeground())
{}

void FEditableTextStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&BackgroundImageSelected);
	OutBrushes.Add(&CaretImage);
}

FScrollBarStyle::FScrollBarStyle()
	: Thickness(10.0f)
{}

void FScrollBarStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&HorizontalBackgroundImage);
	OutBrushes.Add(&VerticalBackgroundImage);
	OutBrushes.Add(&NormalThumbImage);
	OutBrushes.Add(&HoveredThumbImage);
	OutBrushes.Add(&DraggedThumbImage);
}

FEditableTextBoxStyle::FEditableTextBoxStyle()
	: Padding(FMargin(4.0f, 2.0f))
	, ForegroundColor(FSlateColor::UseForeground())
	, BackgroundColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
	, ReadOnlyForegroundColor(FSlateColor::UseForeground())
{}

void FEditableTextBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&BackgroundImageNormal);
	OutBrushes.Add(&BackgroundImageHovered);
	OutBrushes.Add(&BackgroundImageFocused);
	OutBrushes.Add(&BackgroundImageReadOnly);
}

FSearchBoxStyle::FSearchBoxStyle() {}

void FSearchBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	TextBoxStyle.GetResources(OutBrushes);
	OutBrushes.Add(&GlassImage);
	OutBrushes.Add(&ClearImage);
}

FProgressBarStyle::FProgressBarStyle() {}

void FProgressBarStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&BackgroundImage);
	OutBrushes.Add(&FillImage);
	OutBrushes.Add(&MarqueeImage);
}

FSliderStyle::FSliderStyle()
	: BarThickness(2.0f)
{}

void FSliderStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&NormalBarImage);
	OutBrushes.Add(&NormalThumbImage);
	OutBrushes.Add(&HoveredThumbImage);
}

FSplitterStyle::FSplitterStyle() {}

void FSplitterStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&HandleNormalBrush);
	OutBrushes.Add(&HandleHighlightBrush);
}

FTableRowStyle::FTableRowStyle()
	: TextColor(FSlateColor::UseForeground())
	, SelectedTextColor(FSlateColor::UseForeground())
{}

void FTableRowStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&SelectorFocusedBrush);
	OutBrushes.Add(&ActiveHoveredBrush);
	OutBrushes.Add(&ActiveBrush);
	OutBrushes.Add(&InactiveHoveredBrush);
	OutBrushes.Add(&InactiveBrush);
	OutBrushes.Add(&EvenRowBackgroundHoveredBrush);
	OutBrushes.Add(&EvenRowBackgroundBrush);
	OutBrushes.Add(&OddRowBackgroundHoveredBrush);
	OutBrushes.Add(&OddRowBackgroundBrush);
}

FComboButtonStyle::FComboButtonStyle()
	: MenuBorderPadding(FMargin(0.0f))
{}

void FComboButtonStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	ButtonStyle.GetResources(OutBrushes);
	OutBrushes.Add(&DownArrowImage);
	OutBrushes.Add(&MenuBorderBrush);
}

FWindowStyle::FWindowStyle() {}

void FWindowStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&BackgroundBrush);
	OutBrushes.Add(&BorderBrush);
	TitleTextStyle.GetResources(OutBrushes);
}
