// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SContentTile.h"

#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/SContentToolTip.h"
#include "Host/ContentBrowser/SThumbnail.h"
#include "Host/ContentBrowser/STileName.h"

#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

namespace TintmillHost
{
void SContentTile::Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& Owner)
{
	Item = InArgs._Item;
	ThumbnailSize = InArgs._ThumbnailSize;
	// clang-format off
	STableRow<FContentItemPtr>::Construct(STableRow<FContentItemPtr>::FArguments()
		.Style(ContentStyle::GetTileRowStyle())
		.Padding(FMargin(ContentStyle::TileGap))
		[
			SNew(SBorder)
			.BorderImage(this, &SContentTile::GetPlate)
			.Padding(FMargin(ContentStyle::PlatePadding))
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot()
				.AutoHeight()
				.HAlign(HAlign_Center)
				[
					SNew(SBox)
					.WidthOverride(this, &SContentTile::GetThumbnailLength)
					.HeightOverride(this, &SContentTile::GetThumbnailLength)
					[
						SNew(SThumbnail)
						.Item(Item)
					]
				]
				+ SVerticalBox::Slot()
				.FillHeight(1.0f)
				.Padding(FMargin(0.0f, 3.0f, 0.0f, 0.0f))
				[
					MakeName(InArgs)
				]
			]
		], Owner);
	// clang-format on
	if (Item->Kind != EContentKind::NewAsset)
	{
		SetToolTip(TAttribute<TSharedPtr<IToolTip>>(TSharedPtr<IToolTip>(SNew(SContentToolTip).Item(Item))));
	}
}

TSharedRef<SWidget> SContentTile::MakeName(const FArguments& InArgs)
{
	if (Item->Kind != EContentKind::NewAsset)
	{
		return SNew(STileName).Name(Item->Label).Color(this, &SContentTile::GetNameColor);
	}
	// clang-format off
	return SNew(SBox)
		.VAlign(VAlign_Top)
		[
			SAssignNew(NameBox, SEditableTextBox)
			.Text(FText::FromString(Item->Label))
			.Font(ContentStyle::GetFont(8))
			.Padding(FMargin(3.0f, 2.0f))
			.SelectAllTextWhenFocused(true)
			.ClearKeyboardFocusOnCommit(false)
			.OnTextChanged(InArgs._OnNameChanged)
			.OnTextCommitted(InArgs._OnNameCommitted)
			.OnKeyDownHandler(InArgs._OnNameKeyDown)
		];
	// clang-format on
}

const FSlateBrush* SContentTile::GetPlate() const
{
	return ContentStyle::GetTileBrush(IsItemSelected(), IsHovered());
}

FLinearColor SContentTile::GetNameColor() const
{
	return IsItemSelected() ? FLinearColor::Black : ContentStyle::GetTextColor();
}

FOptionalSize SContentTile::GetThumbnailLength() const
{
	return FOptionalSize(ThumbnailSize.Get());
}
}
