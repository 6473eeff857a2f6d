// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SComboButton.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

SComboButton::SComboButton()
	: Style(nullptr)
	, bIsFocusable(true)
{}

void SComboButton::Construct(const FArguments& InArgs)
{
	check(InArgs._ComboButtonStyle != nullptr);
	Style = InArgs._ComboButtonStyle;
	OnGetContent = InArgs._OnGetMenuContent;
	OnComboBoxOpened = InArgs._OnComboBoxOpened;
	bIsFocusable = InArgs._IsFocusable;

	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
			  .Padding(InArgs._ContentPadding)
			  .HAlign(InArgs._HAlign)
			  .VAlign(InArgs._VAlign)[InArgs._ButtonContent.Widget];
	if (InArgs._HasDownArrow)
	{
		Row->AddSlot().AutoWidth().HAlign(HAlign_Center).VAlign(VAlign_Center).Padding(2.0f)[SNew(SImage).Image(&Style->DownArrowImage)];
	}
	SMenuAnchor::Construct(
		SMenuAnchor::FArguments()
			.Placement(InArgs._MenuPlacement)
			.OnMenuOpenChanged(
				InArgs._OnMenuOpenChanged)[SNew(SButton)
											   .ButtonStyle(InArgs._ButtonStyle != nullptr ? InArgs._ButtonStyle : &Style->ButtonStyle)
											   .ClickMethod(EButtonClickMethod::MouseDown)
											   .OnClicked(this, &SComboButton::OnButtonClicked)
											   .ContentPadding(FMargin(0.0f))
											   .ForegroundColor(InArgs._ForegroundColor)
											   .ButtonColorAndOpacity(InArgs._ButtonColorAndOpacity)
											   .IsFocusable(InArgs._IsFocusable)[Row]]);
	if (InArgs._MenuContent.Widget != SNullWidget::NullWidget)
	{
		SetMenuContent(InArgs._MenuContent.Widget);
	}
}

void SComboButton::SetMenuContent(TSharedRef<SWidget> InContent)
{
	SMenuAnchor::SetMenuContent(SNew(SBorder).BorderImage(&Style->MenuBorderBrush).Padding(Style->MenuBorderPadding)[InContent]);
}

FReply SComboButton::OnButtonClicked()
{
	// A click that closed the menu does not open it again.
	const bool bOpen = ShouldOpenDueToClick();
	if (bOpen && OnGetContent.IsBound())
	{
		SetMenuContent(OnGetContent.Execute());
	}
	SetIsOpen(bOpen, bIsFocusable);
	if (IsOpen())
	{
		OnComboBoxOpened.ExecuteIfBound();
	}
	return FReply::Handled();
}
