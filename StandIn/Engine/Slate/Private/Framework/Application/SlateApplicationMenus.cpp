// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"
#include "Layout/LayoutUtils.h"

TSharedPtr<IMenu> FSlateApplication::PushMenu(const TSharedRef<SWidget>& InParentWidget, const FWidgetPath& InOwnerPath,
	const TSharedRef<SWidget>& InContent, const FVector2D& SummonLocation, const FPopupTransitionEffect& TransitionEffect,
	const bool bFocusImmediately, const FVector2D& SummonLocationSize, TOptional<EPopupMethod> Method, const bool bIsCollapsedByParent)
{
	FWidgetPath OwnerPath = InOwnerPath;
	if (!OwnerPath.IsValid() && !GeneratePathToWidgetUnchecked(InParentWidget, OwnerPath))
	{
		// The summoning widget is in no window, as in the engine nothing is shown then.
		return TSharedPtr<IMenu>();
	}
	CloseToolTip();
	return MenuStack.Push(
		OwnerPath, InContent, SummonLocation, TransitionEffect, bFocusImmediately, SummonLocationSize, Method, bIsCollapsedByParent);
}

TSharedPtr<IMenu> FSlateApplication::PushMenu(const TSharedPtr<IMenu>& InParentMenu, const TSharedRef<SWidget>& InContent,
	const FVector2D& SummonLocation, const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately,
	const FVector2D& SummonLocationSize, const bool bIsCollapsedByParent)
{
	CloseToolTip();
	return MenuStack.Push(
		InParentMenu, InContent, SummonLocation, TransitionEffect, bFocusImmediately, SummonLocationSize, bIsCollapsedByParent);
}

TSharedPtr<SWindow> FSlateApplication::GetVisibleMenuWindow() const
{
	return MenuStack.HasMenus() ? MenuStack.GetMenu(MenuStack.GetNumStackLevels() - 1)->GetOwnedWindow() : TSharedPtr<SWindow>();
}

void FSlateApplication::DismissAllMenus()
{
	MenuStack.DismissAll();
}

void FSlateApplication::DismissMenu(const TSharedPtr<IMenu>& InFromMenu)
{
	MenuStack.DismissFrom(InFromMenu);
}

void FSlateApplication::DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu)
{
	const TSharedPtr<IMenu> Menu = MenuStack.FindMenuOfWidget(InWidgetInMenu);
	if (Menu.IsValid())
	{
		MenuStack.DismissFrom(Menu);
	}
}

FVector2D FSlateApplication::CalculatePopupWindowPosition(const FSlateRect& InAnchor, const FVector2D& InSize,
	bool /*bAutoAdjustForDPIScale*/, const FVector2D& InProposedPlacement, const EOrientation Orientation) const
{
	const FVector2D Wanted = InProposedPlacement != FVector2D(0.0f, 0.0f) ? InProposedPlacement
		: Orientation == Orient_Vertical                                  ? InAnchor.GetBottomLeft()
																		  : InAnchor.GetTopRight();
	return ComputePopupFitInRect(InAnchor, FSlateRect::FromPointAndExtent(Wanted, InSize), Orientation, GetWorkArea(InAnchor));
}
