// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/SMenuEntryRow.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"

void SMenuEntryRow::ExecuteAction(const bool bCloseMenu)
{
	const FUIAction Action = Block->GetAction();
	// The action may be bound to a widget that goes with the menu: it and its parents live until the action has run.
	TArray<TSharedPtr<SWidget>> KeptAlive;
	for (TSharedPtr<SWidget> Widget = AsShared(); Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		KeptAlive.Add(Widget);
	}
	if (bCloseMenu)
	{
		if (Block->ShouldCloseSelfOnly())
		{
			FSlateApplication::Get().DismissMenuByWidget(AsShared());
		}
		else
		{
			FSlateApplication::Get().DismissAllMenus();
		}
	}
	Action.Execute();
}

void SMenuEntryRow::Choose()
{
	if (!IsEnabled())
	{
		return;
	}
	const TSharedPtr<SMultiBoxWidget> OwnerPinned = Owner.Pin();
	const bool bHasAction = Block->GetAction().IsBound();
	if (HasSubMenu() && !bHasAction)
	{
		if (OwnerPinned.IsValid())
		{
			OwnerPinned->OpenSubMenuNow(SharedThis(this));
		}
		return;
	}
	const bool bBoxCloses = !OwnerPinned.IsValid() || OwnerPinned->GetMultiBox()->ShouldCloseWindowAfterMenuSelection();
	ExecuteAction(bBoxCloses && Block->GetArguments().bShouldCloseWindowAfterMenuSelection);
}

void SMenuEntryRow::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	// A row that came under a resting mouse was not pointed at.
	bAwaitsMove = MouseEvent.GetCursorDelta() == FVector2D(0.0f, 0.0f);
	const TSharedPtr<SMultiBoxWidget> OwnerPinned = Owner.Pin();
	if (!bAwaitsMove && OwnerPinned.IsValid())
	{
		OwnerPinned->OnRowHovered(SharedThis(this));
	}
}

FReply SMenuEntryRow::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<SMultiBoxWidget> OwnerPinned = Owner.Pin();
	if (bAwaitsMove && OwnerPinned.IsValid() && MouseEvent.GetCursorDelta() != FVector2D(0.0f, 0.0f))
	{
		bAwaitsMove = false;
		OwnerPinned->OnRowHovered(SharedThis(this));
	}
	return SCompoundWidget::OnMouseMove(MyGeometry, MouseEvent);
}

void SMenuEntryRow::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseLeave(MouseEvent);
	if (const TSharedPtr<SMultiBoxWidget> OwnerPinned = Owner.Pin())
	{
		OwnerPinned->OnRowUnhovered(SharedThis(this));
	}
}

FReply SMenuEntryRow::OnMouseButtonDown(const FGeometry&, const FPointerEvent&)
{
	return FReply::Handled();
}

FReply SMenuEntryRow::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		return FReply::Handled();
	}
	const bool bOnCheckBox = Block->GetArguments().UserInterfaceActionType == EUserInterfaceActionType::ToggleButton
		&& CheckWidget.IsValid() && CheckWidget->GetCachedGeometry().IsUnderLocation(MouseEvent.GetScreenSpacePosition());
	if (bOnCheckBox)
	{
		if (IsEnabled())
		{
			ExecuteAction(false);
		}
	}
	else
	{
		Choose();
	}
	return FReply::Handled();
}

FReply SMenuEntryRow::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDown(InMyGeometry, InMouseEvent);
}

FReply SMenuEntryRow::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const TSharedPtr<SMultiBoxWidget> OwnerPinned = Owner.Pin();
	const bool bChoose = Key == EKeys::Enter || Key == EKeys::SpaceBar;
	if (HasSubMenu() && IsEnabled() && OwnerPinned.IsValid() && (Key == EKeys::Right || (bChoose && !Block->GetAction().IsBound())))
	{
		OwnerPinned->OpenSubMenuNow(SharedThis(this));
		const TSharedPtr<SWidget> Content = GetSubMenuContent();
		if (Content.IsValid() && Content->GetType() == TEXT("SMultiBoxWidget"))
		{
			StaticCastSharedPtr<SMultiBoxWidget>(Content)->FocusFirstRow();
		}
		return FReply::Handled();
	}
	if (bChoose)
	{
		Choose();
		return FReply::Handled();
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}
