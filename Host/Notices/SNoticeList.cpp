// Copyright The Tintmill authors. All rights reserved.

#include "Host/Notices/SNoticeList.h"

#include "Host/Notices/SNoticeBox.h"
#include "Host/Program/Strings.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** More would hide the picture that they speak of. */
constexpr int32 MaxBoxes = 3;

constexpr float WidestText = 330.0f;
constexpr float NarrowestText = 80.0f;

/** What a box takes beside its text, and the space around it. */
constexpr float WidthBesideText = 100.0f;

/** The line at the bottom of the window stays in sight. */
const FMargin Margin(10.0f, 10.0f, 10.0f, 30.0f);

int32 GetNumBoxes(const TArray<TSharedRef<SNoticeBox>>& Boxes)
{
	return std::min(Boxes.Num(), MaxBoxes);
}
}

void SNoticeList::Construct(const FArguments&)
{
	// clang-format off
	ChildSlot
	.HAlign(HAlign_Right)
	.VAlign(VAlign_Bottom)
	.Padding(Margin)
	[
		SAssignNew(Column, SVerticalBox)
		.Visibility(EVisibility::SelfHitTestInvisible)
	];
	// clang-format on
	StandIn::OnNotice().AddSP(this, &SNoticeList::OnNotice);
}

void SNoticeList::ShowAgain()
{
	Boxes.Empty();
	Known.clear();
}

void SNoticeList::Tick(const FGeometry& AllottedGeometry, const double, const float InDeltaTime)
{
	Width = AllottedGeometry.GetLocalSize().X;
	bool bChanged = TakeNotices();
	// Those that wait for a place do not grow old.
	for (int32 Index = Boxes.Num() - 1; Index >= Boxes.Num() - GetNumBoxes(Boxes) && Index >= 0; --Index)
	{
		if (!Boxes[Index]->Advance(InDeltaTime))
		{
			Boxes.RemoveAt(Index);
			bChanged = true;
		}
	}
	if (bChanged)
	{
		Arrange();
	}
}

void SNoticeList::OnNotice(const StandIn::FNotice& Notice)
{
	// It may have been cleared and added within a frame.
	Known.erase(ToUtf8(Notice.Key));
}

bool SNoticeList::TakeNotices()
{
	const TArray<StandIn::FNotice>& Notices = StandIn::GetNotices();
	bool bChanged = false;
	std::map<std::string, FString> Standing;
	TArray<TSharedRef<SNoticeBox>> NewBoxes;
	for (const StandIn::FNotice& Notice : Notices)
	{
		const std::string Key = ToUtf8(Notice.Key);
		const auto Found = Known.find(Key);
		if (Found == Known.end() || !Found->second.Equals(Notice.Text))
		{
			NewBoxes.Add(SNew(SNoticeBox, Notice).TextWidth(this, &SNoticeList::GetTextWidth));
		}
		Standing[Key] = Notice.Text;
	}
	// What was put right goes, and so does the box of a notice that has a new one.
	const int32 NumBefore = Boxes.Num();
	Boxes.RemoveAll([&](const TSharedRef<SNoticeBox>& Box) {
		const std::string Key = ToUtf8(Box->GetNotice().Key);
		return Standing.count(Key) == 0 || NewBoxes.ContainsByPredicate([&](const TSharedRef<SNoticeBox>& NewBox) {
			return NewBox->GetNotice().Key.Equals(Box->GetNotice().Key);
		});
	});
	bChanged = NumBefore != Boxes.Num() || NewBoxes.Num() > 0;
	Boxes.Append(NewBoxes);
	Known = std::move(Standing);
	return bChanged;
}

void SNoticeList::Arrange()
{
	Column->ClearChildren();
	if (Boxes.Num() > MaxBoxes)
	{
		// clang-format off
		Column->AddSlot()
		.AutoHeight()
		.HAlign(HAlign_Right)
		.Padding(0.0f, 6.0f, 0.0f, 0.0f)
		[
			SNew(SBorder)
			.BorderImage(FCoreStyle::Get().GetBrush("NotificationList.ItemBackground"))
			.Padding(FMargin(10.0f, 3.0f, 4.0f, 3.0f))
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(0.0f, 0.0f, 8.0f, 0.0f)
				[
					SNew(STextBlock)
					.Text(this, &SNoticeList::DescribeRest)
				]
				+ SHorizontalBox::Slot()
				.AutoWidth()
				[
					SNew(SButton)
					.ButtonStyle(&FCoreStyle::Get(), "HoverHintOnly")
					.IsFocusable(false)
					.Text(FText::FromString(TEXT("Close All")))
					.OnClicked(this, &SNoticeList::OnAllClosed)
				]
			]
		];
		// clang-format on
	}
	for (int32 Index = Boxes.Num() - GetNumBoxes(Boxes); Index < Boxes.Num(); ++Index)
	{
		Column->AddSlot().AutoHeight().HAlign(HAlign_Right).Padding(0.0f, 6.0f, 0.0f, 0.0f)[Boxes[Index]];
	}
}

float SNoticeList::GetTextWidth() const
{
	return std::clamp(Width - WidthBesideText, NarrowestText, WidestText);
}

FText SNoticeList::DescribeRest() const
{
	return FText::FromString(FString::Printf(TEXT("and %d more"), Boxes.Num() - GetNumBoxes(Boxes)));
}

FReply SNoticeList::OnAllClosed()
{
	Boxes.Empty();
	Arrange();
	return FReply::Handled();
}
}
