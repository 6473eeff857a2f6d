// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SFolderRow.h"

#include "Host/ContentBrowser/ContentStyle.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace TintmillHost
{
namespace
{
constexpr float IndentStep = 12.0f;
constexpr float ArrowRoom = 14.0f;
constexpr float RowHeight = 20.0f;
}

void SFolderRow::Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& Owner)
{
	Row = InArgs._Row;
	OnToggled = InArgs._OnToggled;
	// clang-format off
	STableRow<FFolderRowPtr>::Construct(STableRow<FFolderRowPtr>::FArguments()
		[
			SNew(SBox)
			.HeightOverride(RowHeight)
			.Padding(FMargin(2.0f + IndentStep * static_cast<float>(Row->Depth), 0.0f, 2.0f, 0.0f))
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				[
					SNew(SBox)
					.WidthOverride(ArrowRoom)
					.HAlign(HAlign_Center)
					[
						SAssignNew(Arrow, SButton)
						.ButtonStyle(&FCoreStyle::Get(), "NoBorder")
						.ContentPadding(FMargin(0.0f))
						.IsFocusable(false)
						.Visibility(this, &SFolderRow::GetArrowVisibility)
						.OnClicked(this, &SFolderRow::OnArrowClicked)
						[
							SNew(SImage)
							.Image(this, &SFolderRow::GetArrow)
							.ColorAndOpacity(FSlateColor::UseForeground())
						]
					]
				]
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(FMargin(1.0f, 0.0f, 4.0f, 0.0f))
				[
					SNew(SImage)
					.Image(ContentStyle::GetFolderBrush())
				]
				+ SHorizontalBox::Slot()
				.FillWidth(1.0f)
				.VAlign(VAlign_Center)
				[
					SNew(STextBlock)
					.Text(FText::FromString(Row->Label))
				]
			]
		], Owner);
	// clang-format on
}

FVector2D SFolderRow::GetArrowCenter() const
{
	return Arrow->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
}

FReply SFolderRow::OnArrowClicked()
{
	OnToggled.ExecuteIfBound(Row->Path);
	return FReply::Handled();
}

const FSlateBrush* SFolderRow::GetArrow() const
{
	return ContentStyle::GetArrowBrush(Row->bExpanded);
}

EVisibility SFolderRow::GetArrowVisibility() const
{
	return Row->bHasFolders ? EVisibility::Visible : EVisibility::Hidden;
}
}
