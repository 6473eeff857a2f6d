// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/STabStrip.h"

#include "Host/Frame/FrameStyle.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Styling/CoreStyle.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>
#include <iterator>

namespace TintmillHost
{
void STabHead::Construct(const FArguments& InArgs, const FTabLook& InLook)
{
	Name = InLook.Name;
	Front = InArgs._Front;
	OnChosen = InArgs._OnChosen;
	OnClosed = InArgs._OnClosed;
	if (InLook.Visibility.IsSet())
	{
		SetVisibility(InLook.Visibility);
	}
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(this, &STabHead::GetBackground)
		.Padding(FMargin(0.0f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				SNew(SBox)
				.HeightOverride(1.0f)
				[
					SNew(SImage).Image(this, &STabHead::GetLine)
				]
			]
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			.VAlign(VAlign_Center)
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(FMargin(8.0f, 0.0f, 0.0f, 0.0f))
				[
					SNew(SBox)
					.Visibility(InLook.Icon ? EVisibility::HitTestInvisible : EVisibility::Collapsed)
					.WidthOverride(16.0f)
					.HeightOverride(16.0f)
					[
						SNew(SImage).Image(InLook.Icon)
					]
				]
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(FMargin(6.0f, 3.0f, InLook.bClosable ? 4.0f : 12.0f, 4.0f))
				[
					SNew(STextBlock)
					.Visibility(EVisibility::HitTestInvisible)
					.Text(InLook.Label)
					.ColorAndOpacity(this, &STabHead::GetTextColor)
				]
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(FMargin(0.0f, 0.0f, 4.0f, 0.0f))
				[
					InLook.bClosable ? MakeCloseButton() : SNullWidget::NullWidget
				]
			]
		]
	];
	// clang-format on
}

TSharedRef<SWidget> STabHead::MakeCloseButton()
{
	// clang-format off
	return SNew(SButton)
		.ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("HoverHintOnly"))
		.ContentPadding(FMargin(0.0f))
		.IsFocusable(false)
		.Tag(FName(*(TEXT("Close ") + Name.ToString())))
		.OnClicked(this, &STabHead::OnCloseClicked)
		[
			SNew(SBox)
			.Visibility(EVisibility::HitTestInvisible)
			.WidthOverride(12.0f)
			.HeightOverride(12.0f)
			[
				SNew(SImage)
				.Image(FCoreStyle::Get().GetBrush("Icons.Cross"))
				.ColorAndOpacity(this, &STabHead::GetTextColor)
			]
		];
	// clang-format on
}

const FSlateBrush* STabHead::GetBackground() const
{
	return IsInFront() ? FFrameStyle::GetPanel() : IsHovered() ? FFrameStyle::GetHoveredTab() : FFrameStyle::GetTab();
}

const FSlateBrush* STabHead::GetLine() const
{
	return IsInFront() ? FFrameStyle::GetTabLine() : FStyleDefaults::GetNoBrush();
}

FSlateColor STabHead::GetTextColor() const
{
	return IsInFront() || IsHovered() ? FCoreStyle::Get().GetSlateColor("DefaultForeground")
									  : FSlateColor(FLinearColor(0.35f, 0.35f, 0.35f));
}

FReply STabHead::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		OnChosen.ExecuteIfBound(Name);
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

FReply STabHead::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar)
	{
		OnChosen.ExecuteIfBound(Name);
		return FReply::Handled();
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply STabHead::OnCloseClicked()
{
	OnClosed.ExecuteIfBound(Name);
	return FReply::Handled();
}

void STabStrip::Construct(const FArguments& InArgs, const std::vector<FTabLook>& Tabs)
{
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	for (const FTabLook& Tab : Tabs)
	{
		const TSharedRef<STabHead> Head = SNew(STabHead, Tab).Front(InArgs._Front).OnChosen(InArgs._OnChosen).OnClosed(InArgs._OnClosed);
		Heads.push_back(Head);
		Row->AddSlot().AutoWidth().Padding(FMargin(0.0f, 0.0f, 2.0f, 0.0f))[Head];
	}
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(FFrameStyle::GetTabWell())
		.Padding(FMargin(2.0f, 2.0f, 2.0f, 0.0f))
		[
			SNew(SBox)
			.HeightOverride(22.0f)
			[
				Row
			]
		]
	];
	// clang-format on
}

FReply STabStrip::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	std::vector<TSharedRef<STabHead>> Seen;
	std::copy_if(Heads.begin(), Heads.end(), std::back_inserter(Seen),
		[](const TSharedRef<STabHead>& Head) { return Head->GetVisibility().IsVisible(); });
	for (size_t Index = 0; Index < Seen.size(); ++Index)
	{
		const int Step = Key == EKeys::Left ? -1 : Key == EKeys::Right ? 1 : 0;
		if (Step != 0 && Seen[Index]->HasKeyboardFocus())
		{
			const TSharedRef<STabHead> Next = Seen[(Index + Seen.size() + Step) % Seen.size()];
			return FReply::Handled().SetUserFocus(Next, EFocusCause::Navigation);
		}
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}
}
