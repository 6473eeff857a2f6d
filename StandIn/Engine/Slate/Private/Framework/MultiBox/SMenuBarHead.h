// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MenuEntryBlock.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class IMenu;
struct FSlateBrush;

/** A head in a menu bar: opens its menu on a press, and on the way past while a neighbour's is open. */
class SMenuBarHead : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuBarHead) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<const FMenuEntryBlock>& InBlock, const TSharedRef<SMultiBoxWidget>& InOwner);

	/** True while the menu is open. */
	bool IsMenuOpen() const;

	/** Opens the menu with fresh content, on its first row if the keyboard is used, or closes it. */
	void SetMenuOpen(const bool bOpen, const bool bByKeyboard = false);

	/** Opens the menu of the next head (Step 1) or the one before (Step -1), around the ends. */
	void OpenNeighbor(const int32 Step);

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	TArray<TSharedRef<SMenuBarHead>> GetHeads() const;
	TSharedPtr<SMenuBarHead> GetNeighbor(const int32 Step) const;
	bool IsHighlighted() const;
	const FSlateBrush* GetBackground() const;
	FSlateColor GetTextColor() const;
	void OnMenuDismissed(TSharedRef<IMenu> InMenu);

	TSharedPtr<const FMenuEntryBlock> Block;
	TWeakPtr<SMultiBoxWidget> Owner;
	TWeakPtr<IMenu> OpenedMenu;
	bool bDismissedThisTick = false;
};

/** Content of a menu below a head; Left and Right, where the menu has no use for them, go on to the neighbours. */
class SMenuBarPullDown : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuBarPullDown) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<SMenuBarHead>& InHead, const TSharedRef<SWidget>& InContent);

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	TWeakPtr<SMenuBarHead> Head;
};
