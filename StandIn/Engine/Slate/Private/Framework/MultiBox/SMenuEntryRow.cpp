// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/SMenuEntryRow.h"
#include "Framework/Application/IMenu.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MenuLook.h"
#include "Layout/WidgetPath.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/IToolTip.h"
#include "Widgets/Text/STextBlock.h"

void SMenuEntryRow::Construct(
	const FArguments&, const TSharedRef<const FMenuEntryBlock>& InBlock, const TSharedRef<SMultiBoxWidget>& InOwner)
{
	Block = InBlock;
	Owner = InOwner;
	SetEnabled(TAttribute<bool>(this, &SMenuEntryRow::IsActionEnabled));
	SetVisibility(TAttribute<EVisibility>(this, &SMenuEntryRow::GetRowVisibility));
	if (Block->GetArguments().ToolTip.IsSet() || Block->GetArguments().Command.IsValid())
	{
		const TAttribute<FText> Text =
			TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([InBlock]() { return InBlock->GetToolTip(); }));
		SetToolTip(TSharedPtr<IToolTip>(FMenuLook::MakeToolTip(Text)));
	}
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(this, &SMenuEntryRow::GetRowBrush)
		.Padding(FMargin(2.0f, 2.0f, 4.0f, 4.0f))
		.VAlign(VAlign_Center)
		[
			MakeContent()
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SMenuEntryRow::MakeContent()
{
	const EUserInterfaceActionType ActionType = Block->GetArguments().UserInterfaceActionType;
	const TSharedRef<const FMenuEntryBlock> BlockRef = Block.ToSharedRef();
	const TSharedRef<SHorizontalBox> Columns = SNew(SHorizontalBox);
	// clang-format off
	if (ActionType != EUserInterfaceActionType::CollapsedButton)
	{
		Columns->AddSlot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SAssignNew(CheckWidget, SBox)
			.Visibility(EVisibility::HitTestInvisible)
			.WidthOverride(16.0f)
			.HeightOverride(16.0f)
			.HAlign(HAlign_Center)
			.VAlign(VAlign_Center)
			[
				SNew(SImage).Image(this, &SMenuEntryRow::GetCheckBrush)
			]
		];
	}
	if (Block->GetArguments().Contents.IsValid())
	{
		Columns->AddSlot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		.Padding(FMargin(2.0f, 0.0f, 6.0f, 0.0f))
		[
			Block->GetArguments().Contents.ToSharedRef()
		];
	}
	else
	{
		Columns->AddSlot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(FMargin(2.0f, 0.0f, 2.0f, 0.0f))
		[
			SNew(SBox)
			.Visibility(EVisibility::HitTestInvisible)
			.WidthOverride(16.0f)
			.HeightOverride(16.0f)
			[
				SNew(SImage).Image(this, &SMenuEntryRow::GetIconBrush)
			]
		];
		Columns->AddSlot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		.Padding(FMargin(2.0f, 0.0f, 6.0f, 0.0f))
		[
			SNew(STextBlock)
			.Visibility(EVisibility::HitTestInvisible)
			.Text_Lambda([BlockRef]() { return BlockRef->GetLabel(); })
			.Font(FMenuLook::LabelFont())
			.ColorAndOpacity(this, &SMenuEntryRow::GetTextColor)
		];
	}
	const FText InputText = Block->GetInputText();
	if (!InputText.IsEmpty())
	{
		Columns->AddSlot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(FMargin(16.0f, 0.0f, 4.0f, 0.0f))
		[
			SNew(STextBlock)
			.Visibility(EVisibility::HitTestInvisible)
			.Text(InputText)
			.Font(FMenuLook::InputFont())
			.ColorAndOpacity(this, &SMenuEntryRow::GetTextColor)
		];
	}
	Columns->AddSlot()
	.AutoWidth()
	.VAlign(VAlign_Center)
	.Padding(FMargin(7.0f, 0.0f, 0.0f, 0.0f))
	[
		SNew(SBox)
		.Visibility(EVisibility::HitTestInvisible)
		.WidthOverride(8.0f)
		.HeightOverride(8.0f)
		[
			SNew(SImage)
			.Image(HasSubMenu() ? FMenuLook::Arrow() : FMenuLook::None())
			.ColorAndOpacity(this, &SMenuEntryRow::GetTextColor)
		]
	];
	// clang-format on
	return Columns;
}

bool SMenuEntryRow::IsActionEnabled() const
{
	return Block->GetAction().CanExecute();
}

EVisibility SMenuEntryRow::GetRowVisibility() const
{
	return Block->GetAction().IsVisible() ? EVisibility::Visible : EVisibility::Collapsed;
}

bool SMenuEntryRow::IsHighlighted() const
{
	return IsEnabled() && (IsHovered() || HasKeyboardFocus() || IsSubMenuOpen());
}

FSlateColor SMenuEntryRow::GetTextColor() const
{
	return IsHighlighted() ? FMenuLook::HighlightedTextColor() : FMenuLook::TextColor();
}

const FSlateBrush* SMenuEntryRow::GetRowBrush() const
{
	return IsHighlighted() ? FMenuLook::Highlight() : FMenuLook::None();
}

bool SMenuEntryRow::HasCheck() const
{
	const EUserInterfaceActionType ActionType = Block->GetArguments().UserInterfaceActionType;
	return ActionType == EUserInterfaceActionType::ToggleButton || ActionType == EUserInterfaceActionType::RadioButton
		|| ActionType == EUserInterfaceActionType::Check;
}

ECheckBoxState SMenuEntryRow::GetCheckState() const
{
	return HasCheck() ? Block->GetAction().GetCheckState() : ECheckBoxState::Unchecked;
}

const FSlateBrush* SMenuEntryRow::GetCheckBrush() const
{
	return HasCheck() ? FMenuLook::CheckMark(Block->GetArguments().UserInterfaceActionType, GetCheckState(), IsHighlighted())
					  : FMenuLook::None();
}

const FSlateBrush* SMenuEntryRow::GetIconBrush() const
{
	const FSlateIcon Icon = Block->GetIcon();
	if (!Icon.IsSet())
	{
		return FMenuLook::None();
	}
	const FSlateBrush* Small = Icon.GetSmallIcon();
	return Small && Small != FMenuLook::None() ? Small : Icon.GetIcon();
}

FVector2D SMenuEntryRow::GetCheckCentre() const
{
	const FGeometry& Geometry = CheckWidget.IsValid() ? CheckWidget->GetCachedGeometry() : GetCachedGeometry();
	return Geometry.GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
}

void SMenuEntryRow::OpenSubMenu()
{
	if (!HasSubMenu() || IsSubMenuOpen() || !IsEnabled())
	{
		return;
	}
	const TSharedRef<SWidget> Content = Block->MakeSubMenuWidget();
	if (Content->GetType() == TEXT("SMultiBoxWidget"))
	{
		StaticCastSharedRef<SMultiBoxWidget>(Content)->SetParentRow(SharedThis(this));
	}
	const FGeometry& Geometry = GetCachedGeometry();
	SubMenu = FSlateApplication::Get().PushMenu(AsShared(), FWidgetPath(), Content, Geometry.GetAbsolutePosition(),
		FPopupTransitionEffect(FPopupTransitionEffect::SubMenu), false, Geometry.GetAbsoluteSize());
}

void SMenuEntryRow::CloseSubMenu()
{
	const TSharedPtr<IMenu> Open = SubMenu.Pin();
	SubMenu.Reset();
	if (Open.IsValid())
	{
		Open->Dismiss();
	}
}

TSharedPtr<SWidget> SMenuEntryRow::GetSubMenuContent() const
{
	const TSharedPtr<IMenu> Open = SubMenu.Pin();
	return Open.IsValid() ? Open->GetContent() : TSharedPtr<SWidget>();
}
