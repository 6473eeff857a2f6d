// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/SToolBarButton.h"
#include "Framework/MultiBox/MenuLook.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Widgets/IToolTip.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

TSharedRef<SWidget> FToolBarButtonBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>&) const
{
	return SNew(SToolBarButton, StaticCastSharedRef<const FToolBarButtonBlock>(AsShared()));
}

FSlateIcon FToolBarButtonBlock::GetIcon() const
{
	return Look.Icon.IsSet() ? Look.Icon.Get() : Entry->GetIcon();
}

TSharedRef<SWidget> FToolBarWidgetBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>&) const
{
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.FillHeight(1.0f)
		.VAlign(VAlign_Center)
		.Padding(FMargin(4.0f, 2.0f))
		[
			Content
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.HAlign(HAlign_Center)
		[
			SNew(STextBlock)
			.Visibility(Label.IsSet() ? EVisibility::HitTestInvisible : EVisibility::Collapsed)
			.Text(Label)
			.TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("ToolBar.Label"))
		];
	// clang-format on
}

void SToolBarButton::Construct(const FArguments&, const TSharedRef<const FToolBarButtonBlock>& InBlock)
{
	Block = InBlock;
	SetEnabled(TAttribute<bool>(this, &SToolBarButton::IsActionEnabled));
	SetVisibility(TAttribute<EVisibility>(this, &SToolBarButton::GetButtonVisibility));
	const TAttribute<FText> ToolTipText =
		TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([InBlock]() { return InBlock->GetEntry()->GetToolTip(); }));
	const FToolBarButtonLook& Look = InBlock->GetLook();
	const ISlateStyle& Style = *Look.StyleSet;
	TSharedRef<SWidget> Button = SNullWidget::NullWidget;
	// clang-format off
	if (Look.bCombo)
	{
		Button = SAssignNew(Combo, SComboButton)
			.ComboButtonStyle(&Style.GetWidgetStyle<FComboButtonStyle>("ToolBar.ComboButton"))
			.ContentPadding(FMargin(0.0f))
			.IsFocusable(Look.bFocusable)
			.ForegroundColor(this, &SToolBarButton::GetForeground)
			.OnGetMenuContent(FOnGetContent::CreateSP(InBlock->GetEntry(), &FMenuEntryBlock::MakeSubMenuWidget))
			.ButtonContent()
			[
				MakeContent()
			];
	}
	else
	{
		Button = SNew(SButton)
			.ButtonStyle(&Style.GetWidgetStyle<FButtonStyle>("ToolBar.Button"))
			.ContentPadding(FMargin(0.0f))
			.IsFocusable(Look.bFocusable)
			.ForegroundColor(this, &SToolBarButton::GetForeground)
			.OnClicked(this, &SToolBarButton::OnClicked)
			[
				MakeContent()
			];
	}
	Button->SetTag(Look.Tag);
	if (!InBlock->GetEntry()->GetToolTip().IsEmpty())
	{
		Button->SetToolTip(TSharedPtr<IToolTip>(FMenuLook::MakeToolTip(ToolTipText)));
	}
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(this, &SToolBarButton::GetCheckedBrush)
		.Padding(FMargin(0.0f))
		[
			Button
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SToolBarButton::MakeContent()
{
	const FToolBarButtonLook& Look = Block->GetLook();
	if (Look.bSimpleCombo)
	{
		return SNullWidget::NullWidget;
	}
	const ISlateStyle& Style = *Look.StyleSet;
	const TSharedRef<const FMenuEntryBlock> Entry = Block->GetEntry();
	const float IconSize = Look.bSmallIcons ? 20.0f : 40.0f;
	// clang-format off
	return SNew(SBox)
		.Padding(Style.GetMargin("ToolBar.Block.Padding"))
		.MinDesiredWidth(Look.bSmallIcons ? 0.0f : 52.0f)
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.HAlign(HAlign_Center)
			[
				SNew(SBox)
				.Visibility(EVisibility::HitTestInvisible)
				.WidthOverride(IconSize)
				.HeightOverride(IconSize)
				[
					SNew(SImage).Image(this, &SToolBarButton::GetIconBrush)
				]
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.HAlign(HAlign_Center)
			[
				SNew(STextBlock)
				.Visibility(Look.bSmallIcons || !Look.LabelVisibility.IsVisible() ? EVisibility::Collapsed : EVisibility::HitTestInvisible)
				.Text_Lambda([Entry]() { return Entry->GetLabel(); })
				.TextStyle(&Style.GetWidgetStyle<FTextBlockStyle>("ToolBar.Label"))
			]
		];
	// clang-format on
}

FReply SToolBarButton::OnClicked()
{
	// A copy, because the action may make the bar anew.
	const FUIAction Action = Block->GetEntry()->GetAction();
	const TSharedRef<SWidget> KeptAlive = AsShared();
	Action.Execute();
	return FReply::Handled();
}

bool SToolBarButton::IsActionEnabled() const
{
	return Block->GetEntry()->GetAction().CanExecute();
}

EVisibility SToolBarButton::GetButtonVisibility() const
{
	return Block->GetEntry()->GetAction().IsVisible() ? EVisibility::Visible : EVisibility::Collapsed;
}

const FSlateBrush* SToolBarButton::GetIconBrush() const
{
	const FSlateIcon Icon = Block->GetIcon();
	if (!Icon.IsSet())
	{
		return FMenuLook::None();
	}
	const FSlateBrush* Small = Block->GetLook().bSmallIcons ? Icon.GetSmallIcon() : nullptr;
	return Small && Small != FMenuLook::None() ? Small : Icon.GetIcon();
}

const FSlateBrush* SToolBarButton::GetCheckedBrush() const
{
	const EUserInterfaceActionType Type = Block->GetEntry()->GetArguments().UserInterfaceActionType;
	const bool bHasCheck = Type == EUserInterfaceActionType::ToggleButton || Type == EUserInterfaceActionType::RadioButton;
	return bHasCheck && Block->GetEntry()->GetAction().IsChecked() ? Block->GetLook().StyleSet->GetBrush("ToolBar.Checked")
																   : FMenuLook::None();
}

FSlateColor SToolBarButton::GetForeground() const
{
	const bool bBright = IsEnabled() && (IsHovered() || (Combo.IsValid() && Combo->IsOpen()) || GetCheckedBrush() != FMenuLook::None());
	return bBright ? FMenuLook::HighlightedTextColor() : FMenuLook::TextColor();
}
