// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "SViewportToolBar.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class IMenu;
struct FSlateBrush;

// Button of a viewport's toolbar that opens a menu. It takes the keyboard focus itself, so that using it does not make the
// viewport under it the active one. Label icons are left out.

/** Button of a viewport's toolbar that opens a menu. */
class UNREALED_API SEditorViewportToolbarMenu : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SEditorViewportToolbarMenu) {}
	SLATE_ARGUMENT(TSharedPtr<SViewportToolBar>, ParentToolBar)
	SLATE_ATTRIBUTE(FText, Label)
	SLATE_EVENT(FOnGetContent, OnGetMenuContent)
	SLATE_END_ARGS()

	/** Makes the button. */
	void Construct(const FArguments& Declaration);

	/** True while the menu is open. */
	bool IsMenuOpen() const;

	/** Opens the menu with fresh content, or closes it. */
	void SetMenuOpen(const bool bOpen);

	/** The label as it reads now. */
	FText GetLabel() const { return ButtonLabel.Get(); }

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	const FSlateBrush* GetBackground() const;
	void OnMenuDismissed(TSharedRef<IMenu> InMenu);

	TAttribute<FText> ButtonLabel;
	FOnGetContent OnGetMenuContent;
	TWeakPtr<SViewportToolBar> ParentToolBar;
	TWeakPtr<IMenu> OpenedMenu;
	bool bDismissedThisTick = false;
};
