// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MenuLook.h"
#include "Styling/CoreStyle.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/SToolTip.h"

namespace MenuLookPrivate
{
const FTextBlockStyle& TextStyle(const ANSICHAR* Name)
{
	return FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>(Name);
}

const FCheckBoxStyle& CheckStyle(const EUserInterfaceActionType ActionType)
{
	const ANSICHAR* Name = "Menu.Check";
	if (ActionType == EUserInterfaceActionType::ToggleButton)
	{
		Name = "Menu.ToggleButton";
	}
	else if (ActionType == EUserInterfaceActionType::RadioButton)
	{
		Name = "Menu.RadioButton";
	}
	return FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>(Name);
}
}

FSlateFontInfo FMenuLook::LabelFont()
{
	return MenuLookPrivate::TextStyle("Menu.Label").Font;
}

FSlateFontInfo FMenuLook::InputFont()
{
	return MenuLookPrivate::TextStyle("Menu.Keybinding").Font;
}

FSlateFontInfo FMenuLook::HeadingFont()
{
	return MenuLookPrivate::TextStyle("Menu.Heading").Font;
}

FSlateColor FMenuLook::TextColor()
{
	return FCoreStyle::Get().GetSlateColor("DefaultForeground");
}

FSlateColor FMenuLook::HighlightedTextColor()
{
	return FCoreStyle::Get().GetSlateColor("InvertedForeground");
}

FSlateColor FMenuLook::HeadingColor()
{
	return MenuLookPrivate::TextStyle("Menu.Heading").ColorAndOpacity;
}

const FSlateBrush* FMenuLook::Background()
{
	return FCoreStyle::Get().GetBrush("Menu.Background");
}

const FSlateBrush* FMenuLook::Highlight()
{
	return &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Menu.Button").Hovered;
}

const FSlateBrush* FMenuLook::None()
{
	return FStyleDefaults::GetNoBrush();
}

const FSlateBrush* FMenuLook::Separator()
{
	return FCoreStyle::Get().GetBrush("Menu.Separator");
}

const FSlateBrush* FMenuLook::Arrow()
{
	return FCoreStyle::Get().GetBrush("Menu.SubMenuIndicator");
}

TSharedRef<IToolTip> FMenuLook::MakeToolTip(const TAttribute<FText>& Text)
{
	return SNew(SToolTip)
		.Text(Text)
		.BorderImage(FCoreStyle::Get().GetBrush("ToolTip.BrightBackground"))
		.ColorAndOpacity(FCoreStyle::Get().GetSlateColor("InvertedForeground"));
}

const FSlateBrush* FMenuLook::CheckMark(const EUserInterfaceActionType ActionType, const ECheckBoxState State, const bool bHighlighted)
{
	const FCheckBoxStyle& Style = MenuLookPrivate::CheckStyle(ActionType);
	switch (State)
	{
	case ECheckBoxState::Checked:
		return bHighlighted ? &Style.CheckedHoveredImage : &Style.CheckedImage;
	case ECheckBoxState::Undetermined:
		return bHighlighted ? &Style.UndeterminedHoveredImage : &Style.UndeterminedImage;
	default:
		return bHighlighted ? &Style.UncheckedHoveredImage : &Style.UncheckedImage;
	}
}
