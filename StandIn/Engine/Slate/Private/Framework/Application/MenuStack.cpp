// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/MenuStack.h"
#include "Framework/Application/Menu.h"
#include "Framework/Application/SlateApplication.h"

TSharedRef<IMenu> FMenuStack::Push(const FWidgetPath& InOwnerPath, const TSharedRef<SWidget>& InContent, const FVector2D& SummonLocation,
	const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately, const FVector2D& SummonLocationSize,
	TOptional<EPopupMethod> /*InMethod*/, const bool bIsCollapsedByParent)
{
	check(InOwnerPath.IsValid());
	return PushInternal(FindMenuInWidgetPath(InOwnerPath), InOwnerPath.GetDeepestWindow(), InContent,
		FSlateRect::FromPointAndExtent(SummonLocation, SummonLocationSize), TransitionEffect, bFocusImmediately, bIsCollapsedByParent);
}

TSharedRef<IMenu> FMenuStack::Push(const TSharedPtr<IMenu>& InParentMenu, const TSharedRef<SWidget>& InContent,
	const FVector2D& SummonLocation, const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately,
	const FVector2D& SummonLocationSize, const bool bIsCollapsedByParent)
{
	check(FindIndex(InParentMenu.Get()) != INDEX_NONE);
	return PushInternal(InParentMenu, InParentMenu->GetOwnedWindow(), InContent,
		FSlateRect::FromPointAndExtent(SummonLocation, SummonLocationSize), TransitionEffect, bFocusImmediately, bIsCollapsedByParent);
}

TSharedRef<IMenu> FMenuStack::PushInternal(const TSharedPtr<IMenu>& InParentMenu, const TSharedPtr<SWindow>& InParentWindow,
	const TSharedRef<SWidget>& InContent, const FSlateRect& InAnchor, const FPopupTransitionEffect& TransitionEffect,
	bool bFocusImmediately, bool bIsCollapsedByParent)
{
	FSlateApplication& Application = FSlateApplication::Get();

	// Siblings of the new menu go first; without a parent all menus are such.
	const int32 ParentIndex = FindIndex(InParentMenu.Get());
	RemoveMenusFrom(ParentIndex + 1, true);
	if (ParentIndex == INDEX_NONE)
	{
		HostWindow = InParentWindow;
	}

	const TSharedRef<SWindow> Window = SWindow::MakePopupWindow(InAnchor.GetBottomLeft(), EWindowType::Menu);
	Window->SetDPIScaleFactor(InParentWindow->GetDPIScaleFactor());
	const TSharedRef<SMenuContentWrapper> Wrapper = SNew(SMenuContentWrapper).MenuContent()[InContent];
	Window->SetContent(Wrapper);
	const EOrientation Orientation =
		TransitionEffect.SlideDirection == FPopupTransitionEffect::SubMenu ? Orient_Horizontal : Orient_Vertical;
	const TSharedRef<FMenuBase> Menu =
		MakeShareable(new FMenuBase(InContent, Window, InParentWindow, InAnchor, Orientation, bIsCollapsedByParent));
	Menu->SetFocusBefore(Application.GetKeyboardFocusedWidget());
	Stack.Add(Menu);
	Application.AddWindowAsNativeChild(Window, InParentWindow.ToSharedRef(), true);
	Menu->Place();
	if (bFocusImmediately && !Application.SetKeyboardFocus(InContent))
	{
		Application.SetKeyboardFocus(Wrapper);
	}
	return Menu;
}

void FMenuStack::DismissAll()
{
	RemoveMenusFrom(0, true);
}

void FMenuStack::DismissFrom(int32 FirstStackIndexToRemove)
{
	if (FirstStackIndexToRemove >= 0)
	{
		RemoveMenusFrom(FirstStackIndexToRemove, true);
	}
}

void FMenuStack::DismissFrom(const TSharedPtr<IMenu>& InFromMenu)
{
	DismissFrom(FindIndex(InFromMenu.Get()));
}

void FMenuStack::OnMenuContentLostFocus(const FWidgetPath& InFocussedPath)
{
	if (bIsRemoving)
	{
		return;
	}
	const TSharedPtr<IMenu> FocusedMenu = FindMenuInWidgetPath(InFocussedPath);
	int32 FirstIndex = FindIndex(FocusedMenu.Get()) + 1;
	if (FocusedMenu.IsValid())
	{
		// A parent menu that receives the focus closes its children, except those that said no.
		while (FirstIndex < Stack.Num() && !Stack[FirstIndex]->IsCollapsedByParent())
		{
			++FirstIndex;
		}
	}
	RemoveMenusFrom(FirstIndex, false);
}

void FMenuStack::OnWindowDeactivated(const TSharedRef<SWindow>& InWindow)
{
	if (HasMenus() && (HostWindow.Pin() == InWindow || FindMenuFromWindow(InWindow).IsValid()))
	{
		RemoveMenusFrom(0, true);
	}
}

void FMenuStack::OnWindowDestroyed(const TSharedRef<SWindow>& InWindow)
{
	if (!bIsRemoving)
	{
		const TSharedPtr<IMenu> Menu = FindMenuFromWindow(InWindow);
		if (Menu.IsValid())
		{
			RemoveMenusFrom(FindIndex(Menu.Get()), false);
		}
		else if (HasMenus() && HostWindow.Pin() == InWindow)
		{
			RemoveMenusFrom(0, false);
		}
	}
}

TSharedPtr<IMenu> FMenuStack::FindMenuInWidgetPath(const FWidgetPath& PathToQuery) const
{
	for (int32 PathIndex = PathToQuery.Widgets.Num() - 1; PathIndex >= 0; --PathIndex)
	{
		for (int32 StackIndex = Stack.Num() - 1; StackIndex >= 0; --StackIndex)
		{
			const SWidget* Widget = &PathToQuery.Widgets[PathIndex].Widget.Get();
			if (Widget == Stack[StackIndex]->GetOwnedWindow().Get() || Widget == Stack[StackIndex]->GetContent().Get())
			{
				return Stack[StackIndex];
			}
		}
	}
	return TSharedPtr<IMenu>();
}

TSharedPtr<IMenu> FMenuStack::FindMenuFromWindow(const TSharedRef<SWindow>& InWindow) const
{
	for (int32 StackIndex = 0; StackIndex < Stack.Num(); ++StackIndex)
	{
		if (Stack[StackIndex]->GetOwnedWindow() == InWindow)
		{
			return Stack[StackIndex];
		}
	}
	return TSharedPtr<IMenu>();
}

TSharedPtr<IMenu> FMenuStack::FindMenuOfWidget(const TSharedRef<const SWidget>& InWidget) const
{
	const SWidget* Widget = &InWidget.Get();
	TSharedPtr<SWidget> Parent;
	while (Widget != nullptr)
	{
		for (int32 StackIndex = Stack.Num() - 1; StackIndex >= 0; --StackIndex)
		{
			if (Widget == Stack[StackIndex]->GetOwnedWindow().Get() || Widget == Stack[StackIndex]->GetContent().Get())
			{
				return Stack[StackIndex];
			}
		}
		Parent = Widget->GetParentWidget();
		Widget = Parent.Get();
	}
	return TSharedPtr<IMenu>();
}

bool FMenuStack::HasOpenSubMenus(const TSharedPtr<IMenu>& InMenu) const
{
	const int32 Index = FindIndex(InMenu.Get());
	return Index != INDEX_NONE && Index < Stack.Num() - 1;
}

TSharedPtr<IMenu> FMenuStack::GetMenu(int32 Index) const
{
	return Stack[Index];
}

FSlateRect FMenuStack::GetToolTipForceFieldRect(TSharedRef<IMenu> InMenu, const FWidgetPath& /*PathContainingMenu*/) const
{
	const int32 FirstIndex = FindIndex(&InMenu.Get());
	check(FirstIndex != INDEX_NONE);
	FSlateRect Rect = Stack[FirstIndex]->GetOwnedWindow()->GetRectInScreen();
	for (int32 StackIndex = FirstIndex + 1; StackIndex < Stack.Num(); ++StackIndex)
	{
		Rect = Rect.Expand(Stack[StackIndex]->GetOwnedWindow()->GetRectInScreen());
	}
	return Rect;
}

TSharedPtr<SWindow> FMenuStack::GetHostWindow() const
{
	return HasMenus() ? HostWindow.Pin() : TSharedPtr<SWindow>();
}

void FMenuStack::UpdatePlacement()
{
	for (int32 StackIndex = 0; StackIndex < Stack.Num(); ++StackIndex)
	{
		const FVector2D OldSize = Stack[StackIndex]->GetOwnedWindow()->GetSizeInScreen();
		Stack[StackIndex]->GetOwnedWindow()->LayoutWindow();
		if (Stack[StackIndex]->GetOwnedWindow()->GetSizeInScreen() != OldSize
			|| Stack[StackIndex]->GetPlacedIn() != Stack[StackIndex]->GetWorkArea())
		{
			Stack[StackIndex]->Place();
		}
	}
}

int32 FMenuStack::FindIndex(const IMenu* InMenu) const
{
	for (int32 StackIndex = 0; StackIndex < Stack.Num(); ++StackIndex)
	{
		if (Stack[StackIndex].Get() == InMenu)
		{
			return StackIndex;
		}
	}
	return INDEX_NONE;
}

void FMenuStack::RemoveMenusFrom(int32 FirstIndex, bool bRestoreFocus)
{
	if (FirstIndex >= Stack.Num() || bIsRemoving)
	{
		return;
	}
	FSlateApplication& Application = FSlateApplication::Get();
	TArray<TSharedPtr<FMenuBase>> Removed;
	bool bHadFocus = false;
	for (int32 StackIndex = Stack.Num() - 1; StackIndex >= FirstIndex; --StackIndex)
	{
		Removed.Add(Stack[StackIndex]);
		bHadFocus = bHadFocus || Application.HasFocusedDescendants(Stack[StackIndex]->GetOwnedWindow().ToSharedRef());
		Stack.RemoveAt(StackIndex);
	}

	// The focus goes back to the menu before, or to where it was before the first one.
	bIsRemoving = true;
	if (bHadFocus && bRestoreFocus)
	{
		const TSharedPtr<SWidget> OldFocus = Removed.Last()->GetFocusBefore();
		const bool bRestored = OldFocus.IsValid() && (Stack.Num() == 0 || FindMenuOfWidget(OldFocus.ToSharedRef()) == Stack.Last())
			&& Application.SetKeyboardFocus(OldFocus);
		if (!bRestored && (Stack.Num() == 0 || !Application.SetKeyboardFocus(Stack.Last()->GetOwnedWindow()->GetContent())))
		{
			Application.ClearKeyboardFocus();
		}
	}
	for (int32 Index = 0; Index < Removed.Num(); ++Index)
	{
		Application.DestroyWindowImmediately(Removed[Index]->GetOwnedWindow().ToSharedRef());
	}
	bIsRemoving = false;
	for (int32 Index = 0; Index < Removed.Num(); ++Index)
	{
		Removed[Index]->NotifyDismissed();
	}
}
