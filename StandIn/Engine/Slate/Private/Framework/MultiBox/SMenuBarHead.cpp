// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/SMenuBarHead.h"
#include "Framework/Application/IMenu.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MenuBarHeadBlock.h"
#include "Framework/MultiBox/MenuLook.h"
#include "InputCoreTypes.h"
#include "Layout/WidgetPath.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/IToolTip.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

namespace MenuBarHeadPrivate
{
void CollectHeads(const TSharedRef<SWidget>& Widget, TArray<TSharedRef<SMenuBarHead>>& OutHeads)
{
	if (Widget->GetType() == TEXT("SMenuBarHead"))
	{
		OutHeads.Add(StaticCastSharedRef<SMenuBarHead>(Widget));
		return;
	}
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		CollectHeads(Children->GetChildAt(Index), OutHeads);
	}
}
}

TSharedRef<SWidget> FMenuBarHeadBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const
{
	return SNew(SMenuBarHead, Entry, InOwnerMultiBoxWidget);
}

void SMenuBarHead::Construct(
	const FArguments&, const TSharedRef<const FMenuEntryBlock>& InBlock, const TSharedRef<SMultiBoxWidget>& InOwner)
{
	Block = InBlock;
	Owner = InOwner;
	if (!InBlock->GetToolTip().IsEmpty())
	{
		const TAttribute<FText> Text =
			TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([InBlock]() { return InBlock->GetToolTip(); }));
		SetToolTip(TSharedPtr<IToolTip>(FMenuLook::MakeToolTip(Text)));
	}
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(this, &SMenuBarHead::GetBackground)
		.Padding(FCoreStyle::Get().GetMargin("WindowMenuBar.Block.Padding"))
		.VAlign(VAlign_Center)
		[
			SNew(STextBlock)
			.Visibility(EVisibility::HitTestInvisible)
			.Text_Lambda([InBlock]() { return InBlock->GetLabel(); })
			.TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("WindowMenuBar.Label"))
			.ColorAndOpacity(this, &SMenuBarHead::GetTextColor)
		]
	];
	// clang-format on
}

bool SMenuBarHead::IsHighlighted() const
{
	return IsMenuOpen() || IsHovered() || HasKeyboardFocus();
}

const FSlateBrush* SMenuBarHead::GetBackground() const
{
	const FButtonStyle& Style = FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("WindowMenuBar.Button");
	return IsMenuOpen() ? &Style.Pressed : (IsHighlighted() ? &Style.Hovered : &Style.Normal);
}

FSlateColor SMenuBarHead::GetTextColor() const
{
	return IsHighlighted() ? FMenuLook::HighlightedTextColor() : FMenuLook::TextColor();
}

bool SMenuBarHead::IsMenuOpen() const
{
	const TSharedPtr<IMenu> Menu = OpenedMenu.Pin();
	return Menu.IsValid() && Menu->GetContent().IsValid();
}

void SMenuBarHead::OnMenuDismissed(TSharedRef<IMenu>)
{
	bDismissedThisTick = true;
}

void SMenuBarHead::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	bDismissedThisTick = false;
}

void SMenuBarHead::SetMenuOpen(const bool bOpen, const bool bByKeyboard)
{
	if (bOpen == IsMenuOpen())
	{
		return;
	}
	if (!bOpen)
	{
		const TSharedPtr<IMenu> Current = OpenedMenu.Pin();
		Current->Dismiss();
		return;
	}
	const TSharedRef<SWidget> Content = Block->MakeSubMenuWidget();
	const FGeometry& Geometry = GetCachedGeometry();
	OpenedMenu = FSlateApplication::Get().PushMenu(AsShared(), FWidgetPath(), SNew(SMenuBarPullDown, SharedThis(this), Content),
		Geometry.GetAbsolutePosition(), FPopupTransitionEffect(FPopupTransitionEffect::TopMenu), true, Geometry.GetAbsoluteSize());
	if (const TSharedPtr<IMenu> Opened = OpenedMenu.Pin())
	{
		Opened->GetOnMenuDismissed().AddSP(this, &SMenuBarHead::OnMenuDismissed);
		if (bByKeyboard && Content->GetType() == TEXT("SMultiBoxWidget"))
		{
			StaticCastSharedRef<SMultiBoxWidget>(Content)->FocusFirstRow();
		}
	}
}

TArray<TSharedRef<SMenuBarHead>> SMenuBarHead::GetHeads() const
{
	TArray<TSharedRef<SMenuBarHead>> Heads;
	if (const TSharedPtr<SMultiBoxWidget> Bar = Owner.Pin())
	{
		MenuBarHeadPrivate::CollectHeads(Bar.ToSharedRef(), Heads);
	}
	return Heads;
}

TSharedPtr<SMenuBarHead> SMenuBarHead::GetNeighbor(const int32 Step) const
{
	const TArray<TSharedRef<SMenuBarHead>> Heads = GetHeads();
	const int32 Mine = Heads.IndexOfByPredicate([this](const TSharedRef<SMenuBarHead>& Head) { return &Head.Get() == this; });
	return Mine == INDEX_NONE ? TSharedPtr<SMenuBarHead>() : TSharedPtr<SMenuBarHead>(Heads[(Mine + Step + Heads.Num()) % Heads.Num()]);
}

void SMenuBarHead::OpenNeighbor(const int32 Step)
{
	if (const TSharedPtr<SMenuBarHead> Neighbor = GetNeighbor(Step))
	{
		SetMenuOpen(false);
		Neighbor->SetMenuOpen(true, true);
	}
}

void SMenuBarHead::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	for (const TSharedRef<SMenuBarHead>& Head : GetHeads())
	{
		if (&Head.Get() != this && Head->IsMenuOpen())
		{
			Head->SetMenuOpen(false);
			SetMenuOpen(true);
			return;
		}
	}
}

FReply SMenuBarHead::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	// The press that reaches the head of an open menu has closed that menu already.
	SetMenuOpen(!IsMenuOpen() && !bDismissedThisTick);
	return FReply::Handled();
}

FReply SMenuBarHead::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDown(InMyGeometry, InMouseEvent);
}

FReply SMenuBarHead::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Enter || Key == EKeys::SpaceBar || Key == EKeys::Down)
	{
		SetMenuOpen(true, true);
		return FReply::Handled();
	}
	const TSharedPtr<SMenuBarHead> Neighbor = Key == EKeys::Left ? GetNeighbor(-1)
		: Key == EKeys::Right                                    ? GetNeighbor(1)
																 : TSharedPtr<SMenuBarHead>();
	if (Neighbor.IsValid())
	{
		return FReply::Handled().SetUserFocus(Neighbor.ToSharedRef(), EFocusCause::Navigation);
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

void SMenuBarPullDown::Construct(const FArguments&, const TSharedRef<SMenuBarHead>& InHead, const TSharedRef<SWidget>& InContent)
{
	Head = InHead;
	ChildSlot[InContent];
}

FReply SMenuBarPullDown::OnFocusReceived(const FGeometry&, const FFocusEvent& InFocusEvent)
{
	return FReply::Handled().SetUserFocus(ChildSlot.GetWidget(), InFocusEvent.GetCause());
}

FReply SMenuBarPullDown::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const TSharedPtr<SMenuBarHead> Pinned = Head.Pin();
	const FKey Key = InKeyEvent.GetKey();
	if (Pinned.IsValid() && (Key == EKeys::Left || Key == EKeys::Right))
	{
		Pinned->OpenNeighbor(Key == EKeys::Left ? -1 : 1);
		return FReply::Handled();
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}
