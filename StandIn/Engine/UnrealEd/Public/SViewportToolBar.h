// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SEditorViewportToolbarMenu;

// Base of the toolbars that float over viewports. It knows which of its menus is open, so that moving along the buttons
// moves the open menu.

/** Toolbar that floats over a viewport. */
class UNREALED_API SViewportToolBar : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SViewportToolBar) {}
	SLATE_END_ARGS()

	/** Makes an empty toolbar. */
	void Construct(const FArguments& InArgs);

	/** The button whose menu is open, or null. */
	TSharedPtr<SEditorViewportToolbarMenu> GetOpenMenu() const;

	/** Notes the button whose menu was opened last. */
	void SetOpenMenu(const TSharedPtr<SEditorViewportToolbarMenu>& NewMenu) { OpenMenu = NewMenu; }

private:
	TWeakPtr<SEditorViewportToolbarMenu> OpenMenu;
};
