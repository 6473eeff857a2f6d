// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Notifications/SNotificationList.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

SNotificationItem::SNotificationItem()
	: CompletionState(CS_None)
	, FadeInDuration(0.5f)
	, FadeOutDuration(2.0f)
	, ExpireDuration(1.0f)
	, Age(0.0f)
	, TimeToFade(0.0f)
	, FadeAge(0.0f)
	, bExpiring(false)
	, bFading(false)
{}

void SNotificationItem::Construct(const FArguments& /*InArgs*/, const FNotificationInfo& Info)
{
	Hyperlink = Info.Hyperlink;
	FadeInDuration = Info.FadeInDuration;
	FadeOutDuration = Info.FadeOutDuration;
	ExpireDuration = Info.ExpireDuration;

	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	if (Info.Image != nullptr)
	{
		Row->AddSlot().AutoWidth().VAlign(VAlign_Center).Padding(0.0f, 0.0f, 8.0f, 0.0f)[SNew(SImage).Image(Info.Image)];
	}
	Row->AddSlot().AutoWidth().VAlign(VAlign_Center)[SAssignNew(TextBlock, STextBlock).Text(Info.Text).WrapTextAt(400.0f)];
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Row];
	if (Hyperlink.IsBound())
	{
		Column->AddSlot().AutoHeight().HAlign(HAlign_Right)[SNew(SButton)
																.ButtonStyle(&FCoreStyle::Get(), "HoverHintOnly")
																.Text(Info.HyperlinkText)
																.OnClicked(this, &SNotificationItem::OnHyperlinkClicked)];
	}
	ChildSlot.Padding(4.0f)
		[SNew(SBorder).BorderImage(FCoreStyle::Get().GetBrush("NotificationList.ItemBackground")).Padding(FMargin(12.0f, 8.0f))[Column]];
	if (Info.bFireAndForget)
	{
		ExpireAndFadeout();
	}
}

void SNotificationItem::SetText(const TAttribute<FText>& InText)
{
	TextBlock->SetText(InText);
}

FText SNotificationItem::GetText() const
{
	return TextBlock->GetText();
}

void SNotificationItem::ExpireAndFadeout()
{
	bExpiring = true;
	TimeToFade = ExpireDuration;
}

void SNotificationItem::Fadeout()
{
	bFading = true;
}

bool SNotificationItem::Advance(float DeltaTime)
{
	Age += DeltaTime;
	if (bFading)
	{
		FadeAge += DeltaTime;
	}
	else if (bExpiring)
	{
		TimeToFade -= DeltaTime;
		bFading = TimeToFade <= 0.0f;
	}
	const float FadedIn = FadeInDuration > 0.0f ? FMath::Min(1.0f, Age / FadeInDuration) : 1.0f;
	const float FadedOut = !bFading ? 0.0f : FadeOutDuration > 0.0f ? FMath::Min(1.0f, FadeAge / FadeOutDuration) : 1.0f;
	SetRenderOpacity(FadedIn * (1.0f - FadedOut));
	return FadedOut < 1.0f;
}

FReply SNotificationItem::OnHyperlinkClicked()
{
	Hyperlink.ExecuteIfBound();
	return FReply::Handled();
}

void SNotificationList::Construct(const FArguments& /*InArgs*/)
{
	ChildSlot[SAssignNew(Box, SVerticalBox)];
}

TSharedRef<SNotificationItem> SNotificationList::AddNotification(const FNotificationInfo& Info)
{
	const TSharedRef<SNotificationItem> Item = SNew(SNotificationItem, Info);
	Items.Add(Item);
	Box->AddSlot().AutoHeight().HAlign(HAlign_Right)[Item];
	return Item;
}

void SNotificationList::Tick(const FGeometry& /*AllottedGeometry*/, const double /*InCurrentTime*/, const float InDeltaTime)
{
	for (int32 Index = Items.Num() - 1; Index >= 0; --Index)
	{
		if (!Items[Index]->Advance(InDeltaTime))
		{
			const TSharedRef<SNotificationItem> Item = Items[Index];
			Items.RemoveAt(Index);
			Box->RemoveSlot(Item);
		}
	}
}
