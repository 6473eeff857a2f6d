// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IMenu.h"
#include "Input/PopupMethodReply.h"
#include "Layout/SlateRect.h"
#include "Misc/Optional.h"

class FMenuBase;
class FWidgetPath;
class SWidget;
class SWindow;

// The open pop-up menus, each opened from the one before it. Every menu has a window of its own. Left out: menus hosted by
// widgets, slide-in animations.

/** How a pop-up slides in; only decides on which side of its anchor it opens. */
struct FPopupTransitionEffect
{
	/** Kinds of pop-ups. */
	enum ESlideDirection
	{
		None,
		ComboButton,
		TopMenu,
		SubMenu,
		TypeInPopup,
		ContextMenu
	} SlideDirection;

	/** Makes an effect. */
	FPopupTransitionEffect(ESlideDirection InitialSlideDirection = None)
		: SlideDirection(InitialSlideDirection)
	{}
};

/** The open pop-up menus, each opened from the one before it. */
class SLATE_API FMenuStack
{
public:
	/** Opens a menu for a widget on a path; if the path goes through an open menu, as that menu's child, else as the only one. */
	TSharedRef<IMenu> Push(const FWidgetPath& InOwnerPath, const TSharedRef<SWidget>& InContent, const FVector2D& SummonLocation,
		const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately = true,
		const FVector2D& SummonLocationSize = FVector2D(0.0f, 0.0f), TOptional<EPopupMethod> InMethod = TOptional<EPopupMethod>(),
		const bool bIsCollapsedByParent = true);

	/** Opens a menu as the child of an open menu, whose other children are closed; null for the first menu. */
	TSharedRef<IMenu> Push(const TSharedPtr<IMenu>& InParentMenu, const TSharedRef<SWidget>& InContent, const FVector2D& SummonLocation,
		const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately = true,
		const FVector2D& SummonLocationSize = FVector2D(0.0f, 0.0f), const bool bIsCollapsedByParent = true);

	/** Closes all menus, the last opened first. */
	void DismissAll();

	/** Closes the menu at an index and all that were opened after it. */
	void DismissFrom(int32 FirstStackIndexToRemove);

	/** Closes a menu and its children; one that is not open does nothing. */
	void DismissFrom(const TSharedPtr<IMenu>& InFromMenu);

	/** Closes what the focus has left: all menus if it is in none, else the children of the one it is in. */
	void OnMenuContentLostFocus(const FWidgetPath& InFocussedPath);

	/** Closes all menus when a window that has some is deactivated. */
	void OnWindowDeactivated(const TSharedRef<SWindow>& InWindow);

	/** Takes a destroyed window's menu out, with its children. */
	void OnWindowDestroyed(const TSharedRef<SWindow>& InWindow);

	/** Returns the innermost open menu that a path goes through, or null. */
	TSharedPtr<IMenu> FindMenuInWidgetPath(const FWidgetPath& PathToQuery) const;

	/** Returns the open menu of a window, or null. */
	TSharedPtr<IMenu> FindMenuFromWindow(const TSharedRef<SWindow>& InWindow) const;

	/** Returns the innermost open menu that a widget is in, by its parents, or null. */
	TSharedPtr<IMenu> FindMenuOfWidget(const TSharedRef<const SWidget>& InWidget) const;

	/** Says whether any menu is open. */
	bool HasMenus() const { return Stack.Num() > 0; }

	/** Says whether a menu has children. */
	bool HasOpenSubMenus(const TSharedPtr<IMenu>& InMenu) const;

	/** Returns the number of open menus. */
	int32 GetNumStackLevels() const { return Stack.Num(); }

	/** Returns the open menu at an index, 0 being the first opened. */
	TSharedPtr<IMenu> GetMenu(int32 Index) const;

	/** Returns the area that tool tips of what is in a menu stay out of: the menu and those opened from it, in desktop space. */
	FSlateRect GetToolTipForceFieldRect(TSharedRef<IMenu> InMenu, const FWidgetPath& PathContainingMenu) const;

	/** Returns the window from which the first menu was opened, or null. */
	TSharedPtr<SWindow> GetHostWindow() const;

	/** Gives menus whose content changed its size their new place; the application calls it every tick. */
	void UpdatePlacement();

private:
	int32 FindIndex(const IMenu* InMenu) const;
	void RemoveMenusFrom(int32 FirstIndex, bool bRestoreFocus);
	TSharedRef<IMenu> PushInternal(const TSharedPtr<IMenu>& InParentMenu, const TSharedPtr<SWindow>& InParentWindow,
		const TSharedRef<SWidget>& InContent, const FSlateRect& InAnchor, const FPopupTransitionEffect& TransitionEffect,
		bool bFocusImmediately, bool bIsCollapsedByParent);

	TArray<TSharedPtr<FMenuBase>> Stack;
	TWeakPtr<SWindow> HostWindow;
	bool bIsRemoving = false;
};
