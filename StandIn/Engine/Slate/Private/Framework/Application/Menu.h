// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Framework/Application/IMenu.h"
#include "Framework/Application/MenuStack.h"
#include "Widgets/SCompoundWidget.h"

class SWindow;

// An open menu of the stack and the widget around its content.

/** An open menu: its content, its window and where it was summoned. */
class FMenuBase : public IMenu
{
public:
	FMenuBase(const TSharedRef<SWidget>& InContent, const TSharedRef<SWindow>& InWindow, const TSharedPtr<SWindow>& InParentWindow,
		const FSlateRect& InAnchor, EOrientation InOrientation, bool bInIsCollapsedByParent);

	void Dismiss() override;
	TSharedPtr<SWindow> GetParentWindow() const override { return ParentWindow.Pin(); }
	TSharedPtr<SWidget> GetContent() const override { return Content; }
	TSharedPtr<SWindow> GetOwnedWindow() const override { return Window; }
	bool IsCollapsedByParent() const override { return bIsCollapsedByParent; }
	FOnMenuDismissed& GetOnMenuDismissed() override { return MenuDismissed; }

	/** Lays the window out and moves it to where it fits: into the work area and, if it can be, off what it came from. */
	void Place();

	/** Returns the area that the menu was placed in. */
	const FSlateRect& GetPlacedIn() const { return PlacedIn; }

	/** Returns the area that the menu has to stay in. */
	FSlateRect GetWorkArea() const;

	/** Notes the widget that had the focus before the menu was opened. */
	void SetFocusBefore(const TSharedPtr<SWidget>& InWidget) { FocusBefore = InWidget; }

	/** Returns the widget that had the focus before the menu was opened, or null. */
	TSharedPtr<SWidget> GetFocusBefore() const { return FocusBefore.Pin(); }

	/** Lets go of content and window and tells those who wait for it. */
	void NotifyDismissed();

private:
	void LayOut(const FVector2D& MaxSize);

	TSharedPtr<SWidget> Content;
	TSharedPtr<SWindow> Window;
	TWeakPtr<SWindow> ParentWindow;
	TWeakPtr<SWidget> FocusBefore;
	FSlateRect Anchor;
	FSlateRect PlacedIn;
	EOrientation Orientation;
	FOnMenuDismissed MenuDismissed;
	bool bIsCollapsedByParent;
};

/** Wraps a menu's content: takes the focus where the content has none, closes on Escape, notices the focus leaving. */
class SMenuContentWrapper : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuContentWrapper) {}
	SLATE_DEFAULT_SLOT(FArguments, MenuContent)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	bool SupportsKeyboardFocus() const override { return true; }
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	void OnFocusChanging(
		const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent) override;
};
