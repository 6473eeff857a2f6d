// Copyright The Tintmill authors. All rights reserved.

#include "SEditorViewportToolbarMenu.h"
#include "Framework/Application/IMenu.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/WidgetPath.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

void SViewportToolBar::Construct(const FArguments&) {}

TSharedPtr<SEditorViewportToolbarMenu> SViewportToolBar::GetOpenMenu() const
{
	const TSharedPtr<SEditorViewportToolbarMenu> Button = OpenMenu.Pin();
	return Button.IsValid() && Button->IsMenuOpen() ? Button : TSharedPtr<SEditorViewportToolbarMenu>();
}

void SEditorViewportToolbarMenu::Construct(const FArguments& Declaration)
{
	ButtonLabel = Declaration._Label;
	OnGetMenuContent = Declaration._OnGetMenuContent;
	ParentToolBar = Declaration._ParentToolBar;
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(this, &SEditorViewportToolbarMenu::GetBackground)
		.Padding(FMargin(6.0f, 2.0f))
		.VAlign(VAlign_Center)
		[
			SNew(STextBlock)
			.Visibility(EVisibility::HitTestInvisible)
			.Text(Declaration._Label)
			.TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("ViewportToolBar.Text"))
		]
	];
	// clang-format on
}

const FSlateBrush* SEditorViewportToolbarMenu::GetBackground() const
{
	const FButtonStyle& Style = FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("ViewportToolBar.Button");
	return IsMenuOpen() ? &Style.Pressed : (IsHovered() ? &Style.Hovered : &Style.Normal);
}

bool SEditorViewportToolbarMenu::IsMenuOpen() const
{
	const TSharedPtr<IMenu> Menu = OpenedMenu.Pin();
	return Menu.IsValid() && Menu->GetContent().IsValid();
}

void SEditorViewportToolbarMenu::OnMenuDismissed(TSharedRef<IMenu>)
{
	bDismissedThisTick = true;
}

void SEditorViewportToolbarMenu::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	bDismissedThisTick = false;
}

void SEditorViewportToolbarMenu::SetMenuOpen(const bool bOpen)
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
	if (!OnGetMenuContent.IsBound())
	{
		return;
	}
	const FGeometry& Geometry = GetCachedGeometry();
	OpenedMenu = FSlateApplication::Get().PushMenu(AsShared(), FWidgetPath(), OnGetMenuContent.Execute(), Geometry.GetAbsolutePosition(),
		FPopupTransitionEffect(FPopupTransitionEffect::ComboButton), true, Geometry.GetAbsoluteSize());
	if (const TSharedPtr<IMenu> Opened = OpenedMenu.Pin())
	{
		Opened->GetOnMenuDismissed().AddSP(this, &SEditorViewportToolbarMenu::OnMenuDismissed);
	}
	if (const TSharedPtr<SViewportToolBar> ToolBar = ParentToolBar.Pin())
	{
		ToolBar->SetOpenMenu(SharedThis(this));
	}
}

void SEditorViewportToolbarMenu::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	const TSharedPtr<SViewportToolBar> ToolBar = ParentToolBar.Pin();
	const TSharedPtr<SEditorViewportToolbarMenu> Open = ToolBar.IsValid() ? ToolBar->GetOpenMenu() : nullptr;
	if (Open.IsValid() && Open.Get() != this && OnGetMenuContent.IsBound())
	{
		Open->SetMenuOpen(false);
		SetMenuOpen(true);
	}
}

FReply SEditorViewportToolbarMenu::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		// The press that reaches the button of an open menu has closed that menu already.
		SetMenuOpen(!IsMenuOpen() && !bDismissedThisTick);
	}
	return FReply::Handled();
}

FReply SEditorViewportToolbarMenu::OnMouseButtonUp(const FGeometry&, const FPointerEvent&)
{
	return FReply::Handled();
}

FReply SEditorViewportToolbarMenu::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDown(InMyGeometry, InMouseEvent);
}

FReply SEditorViewportToolbarMenu::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Enter || Key == EKeys::SpaceBar || Key == EKeys::Down)
	{
		SetMenuOpen(true);
		return FReply::Handled();
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}
