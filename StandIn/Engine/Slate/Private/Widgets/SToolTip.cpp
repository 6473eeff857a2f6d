// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SToolTip.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** The width at which tool tips are wrapped. */
const float ToolTipWrapWidth = 400.0f;
}

void SToolTip::Construct(const FArguments& InArgs)
{
	TextContent = InArgs._Text;
	TextMargin = InArgs._TextMargin;
	BorderImage = InArgs._BorderImage;
	bIsInteractive = InArgs._IsInteractive;
	if (InArgs._Content.Widget != SNullWidget::NullWidget)
	{
		SetContentWidget(InArgs._Content.Widget);
		return;
	}
	const TSharedRef<STextBlock> TextBlock = SNew(STextBlock).Text(TextContent).Font(InArgs._Font).WrapTextAt(ToolTipWrapWidth);
	if (InArgs._ColorAndOpacity.IsSet())
	{
		TextBlock->SetColorAndOpacity(InArgs._ColorAndOpacity);
	}
	ChildSlot[SNew(SBorder).BorderImage(BorderImage).Padding(TextMargin)[TextBlock]];
}

void SToolTip::SetContentWidget(const TSharedRef<SWidget>& InContentWidget)
{
	ToolTipContent = InContentWidget;
	ChildSlot[SNew(SBorder).BorderImage(BorderImage).Padding(TextMargin)[InContentWidget]];
}

bool SToolTip::IsEmpty() const
{
	return !ToolTipContent.IsValid() && TextContent.Get().IsEmpty();
}
