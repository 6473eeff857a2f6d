// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MenuEntryBlock.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class IMenu;

/** Row of a menu entry: check mark, icon, label, key and submenu arrow in columns; runs the action and opens the submenu. */
class SMenuEntryRow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuEntryRow) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<const FMenuEntryBlock>& InBlock, const TSharedRef<SMultiBoxWidget>& InOwner);

	/** The row's entry. */
	const FMenuEntryBlock& GetBlock() const { return *Block; }

	/** True if the row opens a submenu. */
	bool HasSubMenu() const { return Block->GetArguments().bIsSubMenu; }

	/** True if hovering is enough to open the submenu. */
	bool OpensOnHover() const { return HasSubMenu() && !Block->GetArguments().bOpenSubMenuOnClick; }

	/** True while the submenu is open. */
	bool IsSubMenuOpen() const { return GetSubMenuContent().IsValid(); }

	/** Makes the submenu's content and pops it up beside the row. */
	void OpenSubMenu();

	/** Closes the submenu with everything opened from it. */
	void CloseSubMenu();

	/** The widget of the open submenu, or null. */
	TSharedPtr<SWidget> GetSubMenuContent() const;

	/** True if the row is drawn highlighted. */
	bool IsHighlighted() const;

	/** True if the row has a check mark of its own. */
	bool HasCheck() const;

	/** The check state as it is drawn. */
	ECheckBoxState GetCheckState() const;

	/** Centre of the check column in desktop pixels. */
	FVector2D GetCheckCentre() const;

	/** Does what a click on the row's label does. */
	void Choose();

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	TSharedRef<SWidget> MakeContent();
	bool IsActionEnabled() const;
	EVisibility GetRowVisibility() const;
	FSlateColor GetTextColor() const;
	const FSlateBrush* GetRowBrush() const;
	const FSlateBrush* GetCheckBrush() const;
	const FSlateBrush* GetIconBrush() const;
	void ExecuteAction(const bool bCloseMenu);

	TSharedPtr<const FMenuEntryBlock> Block;
	TWeakPtr<SMultiBoxWidget> Owner;
	TWeakPtr<IMenu> SubMenu;
	TSharedPtr<SWidget> CheckWidget;
	bool bAwaitsMove = false;
};
