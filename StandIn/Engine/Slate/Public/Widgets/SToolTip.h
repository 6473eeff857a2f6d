// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/CoreStyle.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SCompoundWidget.h"

// The usual tool tip: a text, wrapped at 400 units, or any widget, on a dark box.

/** The usual tool tip: a text or any widget on a box. */
class SLATE_API SToolTip : public SCompoundWidget, public IToolTip
{
public:
	SLATE_BEGIN_ARGS(SToolTip)
		: _Text()
		, _Content()
		, _Font(FCoreStyle::Get().GetFontStyle("ToolTip.Font"))
		, _TextMargin(FMargin(8.0f))
		, _BorderImage(FCoreStyle::Get().GetBrush("ToolTip.Background"))
		, _IsInteractive(false)
	{}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(FMargin, TextMargin)
	SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	SLATE_ATTRIBUTE(bool, IsInteractive)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Returns the text. */
	const FText& GetTextTooltip() const { return TextContent.Get(); }

	TSharedRef<SWidget> AsWidget() override { return AsShared(); }
	TSharedRef<SWidget> GetContentWidget() override
	{
		return ToolTipContent.IsValid() ? ToolTipContent.ToSharedRef() : ChildSlot.GetWidget();
	}
	void SetContentWidget(const TSharedRef<SWidget>& InContentWidget) override;
	bool IsEmpty() const override;
	bool IsInteractive() const override { return bIsInteractive.Get(); }

private:
	TAttribute<FText> TextContent;
	TSharedPtr<SWidget> ToolTipContent;
	TAttribute<FMargin> TextMargin;
	TAttribute<const FSlateBrush*> BorderImage;
	TAttribute<bool> bIsInteractive;
};
