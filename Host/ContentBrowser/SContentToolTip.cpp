// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SContentToolTip.h"

#include "Host/ContentBrowser/AssetWords.h"
#include "Host/ContentBrowser/ContentStyle.h"

#include "IAssetTypeActions.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace TintmillHost
{
namespace
{
constexpr float WrapWidth = 400.0f;

TSharedRef<SWidget> MakePart(const TSharedRef<SWidget>& Content)
{
	return SNew(SBorder).BorderImage(ContentStyle::GetTipPartBrush()).Padding(FMargin(6.0f, 4.0f))[Content];
}

TSharedRef<SWidget> MakePair(const FText& Key, const FText& Value)
{
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			SNew(STextBlock)
			.Text(FText::Format(LOCTEXT("ToolTipKey", "{0}:"), Key))
			.ColorAndOpacity(FSlateColor(FLinearColor(0.4f, 0.4f, 0.4f)))
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.Padding(FMargin(4.0f, 0.0f, 0.0f, 0.0f))
		[
			SNew(STextBlock)
			.Text(Value)
			.WrapTextAt(WrapWidth)
		];
	// clang-format on
}

TSharedRef<SWidget> MakeProblem(const FString& Problem)
{
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Top)
		[
			SNew(SImage)
			.Image(ContentStyle::GetWarningBrush())
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(FMargin(6.0f, 0.0f, 0.0f, 0.0f))
		[
			SNew(STextBlock)
			.Text(FText::FromString(Problem))
			.WrapTextAt(WrapWidth)
		];
	// clang-format on
}
}

void SContentToolTip::Construct(const FArguments& InArgs)
{
	Item = InArgs._Item;
	SToolTip::Construct(SToolTip::FArguments().TextMargin(FMargin(4.0f)));
}

void SContentToolTip::OnOpening()
{
	SetContentWidget(MakeContent());
}

TSharedRef<SWidget> SContentToolTip::MakeContent() const
{
	// clang-format off
	const TSharedRef<SHorizontalBox> Title = SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(STextBlock)
			.Text(FText::FromString(Item->Label))
			.Font(ContentStyle::GetFont(10, true))
			.WrapTextAt(WrapWidth)
		];
	// clang-format on
	const TSharedRef<SVerticalBox> Parts = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[MakePart(Title)];
	const auto AddPart = [&Parts](const TSharedRef<SWidget>& Content) {
		Parts->AddSlot().AutoHeight().Padding(FMargin(0.0f, 3.0f, 0.0f, 0.0f))[MakePart(Content)];
	};
	if (Item->IsFolder())
	{
		AddPart(MakePair(LOCTEXT("TileViewTooltipPath", "Path"), FText::FromString(Item->Path)));
		return Parts;
	}

	Title->AddSlot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(FMargin(4.0f, 0.0f, 0.0f, 0.0f))[SNew(STextBlock).Text(FText::Format(LOCTEXT("ClassName", "({0})"), GetTypeName(*Item)))];
	const TSharedPtr<IAssetTypeActions> Actions = FindTypeActions(GetItemClass(*Item));
	const FText Description = Actions.IsValid() ? Actions->GetAssetDescription(Item->Asset) : FText::GetEmpty();
	if (!Description.IsEmpty())
	{
		AddPart(SNew(STextBlock).Text(Description).WrapTextAt(WrapWidth));
	}
	AddPart(MakePair(LOCTEXT("TileViewTooltipPath", "Path"), FText::FromName(Item->Asset.PackagePath)));
	const FString Problem = GetAssetProblem(*Item);
	if (!Problem.IsEmpty())
	{
		AddPart(MakeProblem(Problem));
	}
	return Parts;
}
}

#undef LOCTEXT_NAMESPACE
