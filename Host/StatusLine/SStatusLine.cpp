// Copyright The Tintmill authors. All rights reserved.

#include "Host/StatusLine/SStatusLine.h"

#include "Host/Program/Progress.h"
#include "Host/Program/Strings.h"
#include "Host/StatusLine/StatusWords.h"

#include "Brushes/SlateColorBrush.h"
#include "StandIn/BrushShape.h"
#include "StandIn/TextLines.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Notifications/SProgressBar.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace TintmillHost
{
namespace
{
constexpr float LineHeight = 22.0f;
constexpr float ProgressWidth = 140.0f;
constexpr float ProgressHeight = 6.0f;

const FSlateBrush* LineBrush()
{
	static const FSlateColorBrush Brush(FLinearColor(FColor(0x2B, 0x2B, 0x2B)));
	return &Brush;
}

const FSlateBrush* NoticeBrush()
{
	static const StandIn::FShapeBrush Brush(StandIn::EBrushShape::Warning, FVector2D(14.0f, 14.0f), FLinearColor(0.92f, 0.55f, 0.03f));
	return &Brush;
}

EVisibility ShownIf(bool bShown)
{
	return bShown ? EVisibility::Visible : EVisibility::Collapsed;
}

FText GetProgressText()
{
	const FProgress* const Progress = GetCurrentProgress();
	return Progress ? FText::FromString(FromUtf8(Progress->GetText())) : FText::GetEmpty();
}

TOptional<float> GetProgressPart()
{
	const FProgress* const Progress = GetCurrentProgress();
	const float Share = Progress ? static_cast<float>(Progress->GetFraction()) : 0.0f;
	return Share > 0.0f ? TOptional<float>(Share) : TOptional<float>();
}
}

void SStatusLine::Construct(const FArguments& InArgs)
{
	ProjectName = InArgs._ProjectName;
	ReadOnly = InArgs._ReadOnly;
	OnNoticesClicked = InArgs._OnNoticesClicked;
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	// clang-format off
	Row->AddSlot()
	.AutoWidth()
	.VAlign(VAlign_Center)
	.Padding(8.0f, 0.0f)
	[
		SNew(STextBlock)
		.Text(this, &SStatusLine::GetProjectWords)
		.ToolTipText(InArgs._ProjectFolder)
		.ColorAndOpacity(FLinearColor(0.72f, 0.72f, 0.72f))
	];
	AddWords(Row, &SStatusLine::PlayWords);
	AddWords(Row, &SStatusLine::PaneWords);
	Row->AddSlot()
	.FillWidth(1.0f)
	.HAlign(HAlign_Right)
	.VAlign(VAlign_Center)
	.Padding(8.0f, 0.0f)
	[
		// Takes its place also while there is nothing in it.
		SNew(SBox)
		[
			MakeProgress()
		]
	];
	Row->AddSlot()
	.AutoWidth()
	.VAlign(VAlign_Center)
	.Padding(0.0f, 0.0f, 4.0f, 0.0f)
	[
		MakeNotices()
	];
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(LineBrush())
		.Padding(0.0f)
		[
			SNew(SBox)
			.HeightOverride(LineHeight)
			[
				Row
			]
		]
	];
	// clang-format on
}

void SStatusLine::Tick(const FGeometry&, const double, const float)
{
	PaneWords = DescribeActivePane();
	PlayWords = DescribePlayState();
	NoticeWords = DescribeNotices();
}

void SStatusLine::AddWords(const TSharedRef<SHorizontalBox>& Row, std::string SStatusLine::*Words)
{
	const auto GetVisibility = [this, Words] { return ShownIf(!(this->*Words).empty()); };
	// clang-format off
	Row->AddSlot()
	.AutoWidth()
	.Padding(0.0f, 5.0f)
	[
		SNew(SBorder)
		.Visibility_Lambda(GetVisibility)
		.BorderImage(FCoreStyle::Get().GetBrush("Menu.Separator"))
		.Padding(FMargin(0.5f, 0.0f))
	];
	Row->AddSlot()
	.AutoWidth()
	.VAlign(VAlign_Center)
	.Padding(8.0f, 0.0f)
	[
		SNew(STextBlock)
		.Visibility_Lambda(GetVisibility)
		.Text_Lambda([this, Words] { return FText::FromString(FromUtf8(this->*Words)); })
	];
	// clang-format on
}

TSharedRef<SWidget> SStatusLine::MakeProgress()
{
	// clang-format off
	return SNew(SHorizontalBox)
		.Visibility_Lambda([] { return ShownIf(GetCurrentProgress() != nullptr); })
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(0.0f, 0.0f, 8.0f, 0.0f)
		[
			SNew(STextBlock)
			.Text_Static(&GetProgressText)
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(SBox)
			.WidthOverride(ProgressWidth)
			.HeightOverride(ProgressHeight)
			[
				SNew(SProgressBar)
				.Percent_Static(&GetProgressPart)
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SStatusLine::MakeNotices()
{
	// clang-format off
	return SNew(SButton)
		.ButtonStyle(&FCoreStyle::Get(), "HoverHintOnly")
		.ContentPadding(FMargin(4.0f, 1.0f))
		.IsFocusable(false)
		.Visibility_Lambda([this] { return ShownIf(!NoticeWords.empty()); })
		.ToolTipText(FText::FromString(TEXT("Show what could not be used, and why.")))
		.OnClicked(this, &SStatusLine::OnNotices)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(0.0f, 0.0f, 4.0f, 0.0f)
			[
				SNew(SImage)
				.Image(NoticeBrush())
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			[
				SNew(STextBlock)
				.Text_Lambda([this] { return FText::FromString(FromUtf8(NoticeWords)); })
			]
		];
	// clang-format on
}

FText SStatusLine::GetProjectWords() const
{
	return ReadOnly.Get() ? FText::FromString(ProjectName.ToString() + TEXT(" (read-only)")) : ProjectName;
}

FReply SStatusLine::OnNotices()
{
	OnNoticesClicked.ExecuteIfBound();
	return FReply::Handled();
}
}
