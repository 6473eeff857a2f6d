// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"

class IToolTip;
struct FSlateBrush;

/** Fonts, colours and brushes of menus. */
class FMenuLook
{
public:
	/** Font of labels. */
	static FSlateFontInfo LabelFont();

	/** Font of key names. */
	static FSlateFontInfo InputFont();

	/** Font of section headings. */
	static FSlateFontInfo HeadingFont();

	/** Colour of labels. */
	static FSlateColor TextColor();

	/** Colour of labels on a highlighted row. */
	static FSlateColor HighlightedTextColor();

	/** Colour of section headings. */
	static FSlateColor HeadingColor();

	/** Background of a menu. */
	static const FSlateBrush* Background();

	/** Background of a highlighted row. */
	static const FSlateBrush* Highlight();

	/** Nothing. */
	static const FSlateBrush* None();

	/** Line between sections. */
	static const FSlateBrush* Separator();

	/** Arrow of a row that opens a submenu. */
	static const FSlateBrush* Arrow();

	/** Tool tip of a row: dark text on a bright box. */
	static TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& Text);

	/** Check mark of a kind of entry in a state. */
	static const FSlateBrush* CheckMark(const EUserInterfaceActionType ActionType, const ECheckBoxState State, const bool bHighlighted);
};
