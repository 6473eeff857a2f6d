// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

// Styles of whole widgets. Only the fields that the widgets of the stand-in use; left out: sounds, and the styles of widgets
// that are not here.

/** The state of a check box. */
enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined
};

namespace ESlateCheckBoxType
{
/** What a check box looks like. */
enum Type
{
	CheckBox,
	ToggleButton
};
}

#define STANDIN_STYLE_FIELD(Type, Name) \
	Type Name; \
	ThisStyle& Set##Name(const Type& In##Name) \
	{ \
		Name = In##Name; \
		return *this; \
	}

#define STANDIN_STYLE_TYPE(StyleType) \
	typedef StyleType ThisStyle; \
	static const FName TypeName; \
	static const StyleType& GetDefault(); \
	const FName GetTypeName() const override \
	{ \
		return TypeName; \
	} \
	void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;

/** The style of a text. */
struct SLATECORE_API FTextBlockStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FTextBlockStyle)

	/** Makes the default style. */
	FTextBlockStyle();

	STANDIN_STYLE_FIELD(FSlateFontInfo, Font)
	STANDIN_STYLE_FIELD(FSlateColor, ColorAndOpacity)
	STANDIN_STYLE_FIELD(FVector2D, ShadowOffset)
	STANDIN_STYLE_FIELD(FLinearColor, ShadowColorAndOpacity)
	STANDIN_STYLE_FIELD(FSlateColor, SelectedBackgroundColor)
	STANDIN_STYLE_FIELD(FLinearColor, HighlightColor)
	STANDIN_STYLE_FIELD(FSlateBrush, HighlightShape)
};

/** The style of a button. */
struct SLATECORE_API FButtonStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FButtonStyle)

	/** Makes the default style. */
	FButtonStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, Normal)
	STANDIN_STYLE_FIELD(FSlateBrush, Hovered)
	STANDIN_STYLE_FIELD(FSlateBrush, Pressed)
	STANDIN_STYLE_FIELD(FSlateBrush, Disabled)
	STANDIN_STYLE_FIELD(FMargin, NormalPadding)
	STANDIN_STYLE_FIELD(FMargin, PressedPadding)
};

/** The style of a check box. */
struct SLATECORE_API FCheckBoxStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FCheckBoxStyle)

	/** Makes the default style. */
	FCheckBoxStyle();

	STANDIN_STYLE_FIELD(ESlateCheckBoxType::Type, CheckBoxType)
	STANDIN_STYLE_FIELD(FSlateBrush, UncheckedImage)
	STANDIN_STYLE_FIELD(FSlateBrush, UncheckedHoveredImage)
	STANDIN_STYLE_FIELD(FSlateBrush, UncheckedPressedImage)
	STANDIN_STYLE_FIELD(FSlateBrush, CheckedImage)
	STANDIN_STYLE_FIELD(FSlateBrush, CheckedHoveredImage)
	STANDIN_STYLE_FIELD(FSlateBrush, CheckedPressedImage)
	STANDIN_STYLE_FIELD(FSlateBrush, UndeterminedImage)
	STANDIN_STYLE_FIELD(FSlateBrush, UndeterminedHoveredImage)
	STANDIN_STYLE_FIELD(FSlateBrush, UndeterminedPressedImage)
	STANDIN_STYLE_FIELD(FMargin, Padding)
	STANDIN_STYLE_FIELD(FSlateColor, ForegroundColor)
	STANDIN_STYLE_FIELD(FSlateColor, BorderBackgroundColor)
};

/** The style of an editable text without a box. */
struct SLATECORE_API FEditableTextStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FEditableTextStyle)

	/** Makes the default style. */
	FEditableTextStyle();

	STANDIN_STYLE_FIELD(FSlateFontInfo, Font)
	STANDIN_STYLE_FIELD(FSlateColor, ColorAndOpacity)
	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundImageSelected)
	STANDIN_STYLE_FIELD(FSlateBrush, CaretImage)
};

/** The style of a scroll bar. */
struct SLATECORE_API FScrollBarStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FScrollBarStyle)

	/** Makes the default style. */
	FScrollBarStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, HorizontalBackgroundImage)
	STANDIN_STYLE_FIELD(FSlateBrush, VerticalBackgroundImage)
	STANDIN_STYLE_FIELD(FSlateBrush, NormalThumbImage)
	STANDIN_STYLE_FIELD(FSlateBrush, HoveredThumbImage)
	STANDIN_STYLE_FIELD(FSlateBrush, DraggedThumbImage)
	STANDIN_STYLE_FIELD(float, Thickness)
};

/** The style of an editable text in a box. */
struct SLATECORE_API FEditableTextBoxStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FEditableTextBoxStyle)

	/** Makes the default style. */
	FEditableTextBoxStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundImageNormal)
	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundImageHovered)
	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundImageFocused)
	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundImageReadOnly)
	STANDIN_STYLE_FIELD(FMargin, Padding)
	STANDIN_STYLE_FIELD(FSlateFontInfo, Font)
	STANDIN_STYLE_FIELD(FSlateColor, ForegroundColor)
	STANDIN_STYLE_FIELD(FSlateColor, BackgroundColor)
	STANDIN_STYLE_FIELD(FSlateColor, ReadOnlyForegroundColor)
};

/** The style of a search box. */
struct SLATECORE_API FSearchBoxStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FSearchBoxStyle)

	/** Makes the default style. */
	FSearchBoxStyle();

	STANDIN_STYLE_FIELD(FEditableTextBoxStyle, TextBoxStyle)
	STANDIN_STYLE_FIELD(FSlateBrush, GlassImage)
	STANDIN_STYLE_FIELD(FSlateBrush, ClearImage)
};

/** The style of a progress bar. */
struct SLATECORE_API FProgressBarStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FProgressBarStyle)

	/** Makes the default style. */
	FProgressBarStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundImage)
	STANDIN_STYLE_FIELD(FSlateBrush, FillImage)
	STANDIN_STYLE_FIELD(FSlateBrush, MarqueeImage)
};

/** The style of a slider. */
struct SLATECORE_API FSliderStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FSliderStyle)

	/** Makes the default style. */
	FSliderStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, NormalBarImage)
	STANDIN_STYLE_FIELD(FSlateBrush, NormalThumbImage)
	STANDIN_STYLE_FIELD(FSlateBrush, HoveredThumbImage)
	STANDIN_STYLE_FIELD(float, BarThickness)
};

/** The style of a splitter. */
struct SLATECORE_API FSplitterStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FSplitterStyle)

	/** Makes the default style. */
	FSplitterStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, HandleNormalBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, HandleHighlightBrush)
};

/** The style of a row of a list. */
struct SLATECORE_API FTableRowStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FTableRowStyle)

	/** Makes the default style. */
	FTableRowStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, SelectorFocusedBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, ActiveHoveredBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, ActiveBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, InactiveHoveredBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, InactiveBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, EvenRowBackgroundHoveredBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, EvenRowBackgroundBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, OddRowBackgroundHoveredBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, OddRowBackgroundBrush)
	STANDIN_STYLE_FIELD(FSlateColor, TextColor)
	STANDIN_STYLE_FIELD(FSlateColor, SelectedTextColor)
};

/** The style of a combo button. */
struct SLATECORE_API FComboButtonStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FComboButtonStyle)

	/** Makes the default style. */
	FComboButtonStyle();

	STANDIN_STYLE_FIELD(FButtonStyle, ButtonStyle)
	STANDIN_STYLE_FIELD(FSlateBrush, DownArrowImage)
	STANDIN_STYLE_FIELD(FSlateBrush, MenuBorderBrush)
	STANDIN_STYLE_FIELD(FMargin, MenuBorderPadding)
};

/** The style of a window. */
struct SLATECORE_API FWindowStyle : public FSlateWidgetStyle
{
	STANDIN_STYLE_TYPE(FWindowStyle)

	/** Makes the default style. */
	FWindowStyle();

	STANDIN_STYLE_FIELD(FSlateBrush, BackgroundBrush)
	STANDIN_STYLE_FIELD(FSlateBrush, BorderBrush)
	STANDIN_STYLE_FIELD(FTextBlockStyle, TitleTextStyle)
};
