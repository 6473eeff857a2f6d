// Copyright The Tintmill authors. All rights reserved.

#include "Host/Notices/SNoticeBox.h"

#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
constexpr float FadeInSeconds = 0.25f;

/** How long a warning stays before it fades; a person reads a sentence of 40 words in that time. */
constexpr float StaySeconds = 12.0f;
constexpr float FadeOutSeconds = 2.0f;

constexpr float IconSize = 24.0f;

const FSlateBrush* FindSign(StandIn::ENoticeKind Kind)
{
	using StandIn::EBrushShape;
	static const StandIn::FShapeBrush Warning(EBrushShape::Warning, FVector2D(IconSize, IconSize), FLinearColor(0.92f, 0.55f, 0.03f));
	static const StandIn::FShapeBrush Error(EBrushShape::Warning, FVector2D(IconSize, IconSize), FLinearColor(0.9f, 0.06f, 0.04f));
	return Kind == StandIn::ENoticeKind::Error ? &Error : &Warning;
}

const FSlateBrush* BoxBrush()
{
	static const StandIn::FShapeBrush Brush(
		StandIn::EBrushShape::FramedBox, FVector2D(16.0f, 16.0f), FLinearColor(FColor(0x38, 0x38, 0x38)), 4.0f);
	return &Brush;
}
}

void SNoticeBox::Construct(const FArguments& InArgs, const StandIn::FNotice& InNotice)
{
	Notice = InNotice;
	SetRenderOpacity(0.0f);
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(BoxBrush())
		.Padding(FMargin(10.0f, 9.0f, 4.0f, 9.0f))
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Top)
			[
				SNew(SImage)
				.Image(FindSign(Notice.Kind))
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(10.0f, 0.0f, 6.0f, 0.0f)
			[
				SNew(STextBlock)
				.Text(FText::FromString(Notice.Text))
				.Font(FCoreStyle::GetDefaultFontStyle("Regular", 10))
				.WrapTextAt(InArgs._TextWidth)
				.MinDesiredWidth(InArgs._TextWidth)
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Top)
			[
				SNew(SButton)
				.Tag(TEXT("Close Notice"))
				.ButtonStyle(&FCoreStyle::Get(), "HoverHintOnly")
				.ContentPadding(FMargin(1.0f))
				.IsFocusable(false)
				.ToolTipText(FText::FromString(TEXT("Close this notice. What it tells stands until it is put right.")))
				.OnClicked(this, &SNoticeBox::OnClosed)
				[
					SNew(SImage)
					.Image(FCoreStyle::Get().GetBrush("Icons.Cross"))
				]
			]
		]
	];
	// clang-format on
}

bool SNoticeBox::Advance(float Seconds)
{
	if (IsHovered())
	{
		// Whoever points at it reads it: it starts anew.
		Age = std::min(Age + Seconds, StaySeconds);
		SetRenderOpacity(1.0f);
		return !bClosed;
	}
	Age += Seconds;
	const float FadedIn = std::min(1.0f, Age / FadeInSeconds);
	const bool bStays = Notice.Kind == StandIn::ENoticeKind::Error;
	const float FadedOut = bStays ? 0.0f : std::clamp((Age - StaySeconds) / FadeOutSeconds, 0.0f, 1.0f);
	SetRenderOpacity(FadedIn * (1.0f - FadedOut));
	return !bClosed && FadedOut < 1.0f;
}

FReply SNoticeBox::OnClosed()
{
	bClosed = true;
	return FReply::Handled();
}
}
