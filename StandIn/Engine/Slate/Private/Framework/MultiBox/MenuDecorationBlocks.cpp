// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MenuDecorationBlocks.h"
#include "Framework/MultiBox/MenuLook.h"
#include "Framework/MultiBox/SMenuHeading.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

void SMenuHeading::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	// clang-format off
	ChildSlot
	.Padding(FMargin(4.0f, 5.0f, 4.0f, 2.0f))
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			SNew(STextBlock)
			.Text(InArgs._Text)
			.Font(FMenuLook::HeadingFont())
			.ColorAndOpacity(FMenuLook::HeadingColor())
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		.Padding(FMargin(6.0f, 1.0f, 0.0f, 0.0f))
		[
			SNew(SBox)
			.HeightOverride(1.0f)
			[
				SNew(SImage).Image(FMenuLook::Separator())
			]
		]
	];
	// clang-format on
}

TSharedRef<SWidget> FHeadingBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>&) const
{
	return SNew(SMenuHeading).Text(HeadingText);
}

TSharedRef<SWidget> FSeparatorBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const
{
	if (InOwnerMultiBoxWidget->GetMultiBox()->GetType() == EMultiBoxType::ToolBar)
	{
		return SNew(SBox).WidthOverride(9.0f).Padding(FMargin(4.0f, 6.0f))[SNew(SImage).Image(FMenuLook::Separator())];
	}
	return SNew(SBox).HeightOverride(1.0f).Padding(FMargin(0.5f))[SNew(SImage).Image(FMenuLook::Separator())];
}

TSharedRef<SWidget> FWidgetBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>&) const
{
	const FMargin Padding = bNoIndent ? FMargin(2.0f, 2.0f, 4.0f, 4.0f) : FMargin(18.0f, 2.0f, 4.0f, 4.0f);
	const EVisibility LabelVisibility = Label.IsEmpty() ? EVisibility::Collapsed : EVisibility::HitTestInvisible;
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(FMargin(Padding.Left, Padding.Top, 0.0f, Padding.Bottom))
		[
			SNew(STextBlock)
			.Visibility(LabelVisibility)
			.Text(Label)
			.Font(FMenuLook::LabelFont())
			.ColorAndOpacity(FMenuLook::TextColor())
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.VAlign(bNoIndent ? VAlign_Fill : VAlign_Center)
		.Padding(FMargin(Label.IsEmpty() ? 0.0f : 4.0f, Padding.Top, Padding.Right, Padding.Bottom))
		[
			Content
		];
	// clang-format on
}
