// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IMenu.h"
#include "Framework/SlateDelegates.h"
#include "Input/PopupMethodReply.h"
#include "Widgets/SPanel.h"

// A widget that a menu opens beside. Menus are windows of the menu stack; the form without a window is left out.

DECLARE_DELEGATE_OneParam(FOnIsOpenChanged, bool)

	/** A widget that a menu opens beside. */
	class SLATE_API SMenuAnchor : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SMenuAnchor)
		: _Content()
		, _Placement(MenuPlacement_BelowAnchor)
		, _FitInWindow(true)
		, _ShouldDeferPaintingAfterWindowContent(true)
		, _UseApplicationMenuStack(true)
		, _IsCollapsedByParent(false)
	{}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(TSharedPtr<SWidget>, MenuContent)
	SLATE_EVENT(FOnGetContent, OnGetMenuContent)
	SLATE_ATTRIBUTE(EMenuPlacement, Placement)
	SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
	SLATE_ARGUMENT(TOptional<EPopupMethod>, Method)
	SLATE_ATTRIBUTE(bool, FitInWindow)
	SLATE_ARGUMENT(bool, ShouldDeferPaintingAfterWindowContent)
	SLATE_ARGUMENT(bool, UseApplicationMenuStack)
	SLATE_ARGUMENT(bool, IsCollapsedByParent)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SMenuAnchor();

	/** Destroys the widget; its menu closes. */
	~SMenuAnchor() override;

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Puts a widget into the anchor. */
	void SetContent(TSharedRef<SWidget> InContent);

	/** Sets the menu's content, for anchors that are not asked for it. */
	virtual void SetMenuContent(TSharedRef<SWidget> InMenuContent);

	/** Opens or closes the menu; an open one is not opened again. */
	virtual void SetIsOpen(bool InIsOpen, const bool bFocusMenu = true, const int32 FocusUserIndex = 0);

	/** Says whether the menu is open. */
	bool IsOpen() const;

	/** Says whether a click shall open the menu: not if it is open or the same click has closed it. */
	bool ShouldOpenDueToClick() const { return !IsOpen() && !bDismissedThisTick; }

	/** Says whether a menu is open that was opened from this one's menu. */
	bool HasOpenSubMenus() const;

	/** Returns where the menu lies, on the desktop. */
	FVector2D GetMenuPosition() const;

	/** Sets where the menu opens. */
	void SetMenuPlacement(TAttribute<EMenuPlacement> InMenuPlacement) { Placement = InMenuPlacement; }

	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	FChildren* GetChildren() override { return &Child; }

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	void OnMenuClosed(TSharedRef<IMenu> InMenu);

	FSimpleSlot Child;
	TSharedPtr<SWidget> MenuContent;
	FOnGetContent OnGetMenuContent;
	FOnIsOpenChanged OnMenuOpenChanged;
	TAttribute<EMenuPlacement> Placement;
	TOptional<EPopupMethod> Method;
	TWeakPtr<IMenu> PopupMenuPtr;
	bool bIsCollapsedByParent;
	bool bDismissedThisTick;
};
