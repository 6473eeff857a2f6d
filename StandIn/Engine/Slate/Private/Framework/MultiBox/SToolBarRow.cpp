// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/SToolBarRow.h"
#include "Framework/MultiBox/ToolBarBlocks.h"
#include "Layout/ArrangedChildren.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"

SToolBarRow::SToolBarRow()
	: Children(this)
{
	SetCanTick(false);
}

void SToolBarRow::Construct(const FArguments&, const TSharedRef<SMultiBoxWidget>& InOwner)
{
	for (const TSharedRef<const FMultiBlock>& Block : InOwner->GetMultiBox()->GetBlocks())
	{
		Blocks.Add(Block);
		FSlot* Slot = new FSlot();
		(*Slot)[Block->MakeWidget(InOwner)];
		Children.Add(Slot);
	}
	FSlot* ArrowSlot = new FSlot();
	// clang-format off
	(*ArrowSlot)
	[
		SNew(SComboButton)
		.ComboButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FComboButtonStyle>("ToolBar.ComboButton"))
		.ContentPadding(FMargin(2.0f, 0.0f))
		.ToolTipText(NSLOCTEXT("MultiBox", "MoreButtons", "Click to see the buttons that have no room"))
		.OnGetMenuContent(this, &SToolBarRow::MakeMenuOfTheRest)
	];
	// clang-format on
	Children.Add(ArrowSlot);
}

float SToolBarRow::GetBlocksWidth() const
{
	float Width = 0.0f;
	for (int32 Index = 0; Index < Blocks.Num(); ++Index)
	{
		const TSharedRef<const SWidget> Widget = Children.GetChildAt(Index);
		Width += Widget->GetVisibility() == EVisibility::Collapsed ? 0.0f : Widget->GetDesiredSize().X;
	}
	return Width;
}

int32 SToolBarRow::CountFitting(const float Width) const
{
	if (GetBlocksWidth() <= Width)
	{
		return Blocks.Num();
	}
	float Left = Width - Children.GetChildAt(Blocks.Num())->GetDesiredSize().X;
	for (int32 Index = 0; Index < Blocks.Num(); ++Index)
	{
		const TSharedRef<const SWidget> Widget = Children.GetChildAt(Index);
		Left -= Widget->GetVisibility() == EVisibility::Collapsed ? 0.0f : Widget->GetDesiredSize().X;
		if (Left < 0.0f)
		{
			return Index;
		}
	}
	return Blocks.Num();
}

void SToolBarRow::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const int32 NumFitting = CountFitting(Size.X);
	float X = 0.0f;
	for (int32 Index = 0; Index <= Blocks.Num(); ++Index)
	{
		const bool bArrow = Index == Blocks.Num();
		if (bArrow ? NumFitting == Blocks.Num() : Index >= NumFitting)
		{
			continue;
		}
		const TSharedRef<SWidget> Widget = Children[Index].GetWidget();
		const EVisibility ChildVisibility = Widget->GetVisibility();
		if (ChildVisibility != EVisibility::Collapsed)
		{
			const float Width = Widget->GetDesiredSize().X;
			const float Left = bArrow ? Size.X - Width : X;
			ArrangedChildren.AddWidget(
				ChildVisibility, AllottedGeometry.MakeChild(Widget, FVector2D(Left, 0.0f), FVector2D(Width, Size.Y)));
			X += Width;
		}
	}
}

FVector2D SToolBarRow::ComputeDesiredSize(float) const
{
	float Height = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Height = FMath::Max(Height, Children.GetChildAt(Index)->GetDesiredSize().Y);
	}
	return FVector2D(GetBlocksWidth(), Height);
}

TSharedRef<SWidget> SToolBarRow::MakeMenuOfTheRest()
{
	const TSharedRef<FMultiBox> Menu = FMultiBox::Create(EMultiBoxType::Menu, true);
	for (int32 Index = CountFitting(GetCachedGeometry().GetLocalSize().X); Index < Blocks.Num(); ++Index)
	{
		if (Blocks[Index]->GetType() == EMultiBlockType::ToolBarButton || Blocks[Index]->GetType() == EMultiBlockType::ToolBarComboButton)
		{
			Menu->AddMultiBlock(StaticCastSharedRef<const FToolBarButtonBlock>(Blocks[Index])->GetEntry());
		}
	}
	return Menu->MakeWidget();
}

TSharedRef<SWidget> SMultiBoxWidget::MakeBar()
{
	const bool bMenuBar = MultiBox->GetType() == EMultiBoxType::MenuBar;
	TSharedPtr<SWidget> Content;
	if (bMenuBar)
	{
		const TSharedRef<SHorizontalBox> Heads = SNew(SHorizontalBox);
		for (const TSharedRef<const FMultiBlock>& Block : MultiBox->GetBlocks())
		{
			Heads->AddSlot().AutoWidth()[Block->MakeWidget(SharedThis(this))];
		}
		Content = Heads;
	}
	else
	{
		Content = SNew(SToolBarRow, SharedThis(this));
	}
	// clang-format off
	return SNew(SBorder)
		.BorderImage(FCoreStyle::Get().GetBrush(bMenuBar ? "WindowMenuBar.Background" : "ToolBar.Background"))
		.Padding(FCoreStyle::Get().GetMargin(bMenuBar ? "WindowMenuBar.Padding" : "ToolBar.Padding"))
		[
			Content.ToSharedRef()
		];
	// clang-format on
}
