// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "SEditorViewportToolbarMenu.h"

class SEditorViewport;
class UToolMenu;

// The button with the name of the view mode, and its View menu. Views are drawn in one mode only, so "Lit" is checked and the
// other modes are listed and cannot be chosen. The menu is registered when it is opened first.

/** Button of a viewport's toolbar that opens the View menu. */
class UNREALED_API SEditorViewportViewMenu : public SEditorViewportToolbarMenu
{
public:
	SLATE_BEGIN_ARGS(SEditorViewportViewMenu)
		: _MenuName(TEXT("UnrealEd.ViewportToolbar.View"))
	{}
	SLATE_ARGUMENT(FName, MenuName)
	SLATE_ARGUMENT(TSharedPtr<FExtender>, MenuExtenders)
	SLATE_END_ARGS()

	/** Makes the button for a viewport. */
	void Construct(const FArguments& InArgs, TSharedRef<SEditorViewport> InViewport, TSharedRef<SViewportToolBar> InParentToolBar);

	/** Adds the content that the View menus of all viewports share. */
	void FillViewMenu(UToolMenu* Menu) const;

	/** Adds entries of view modes to a section, each "Name", a label and a tool tip. */
	void AddViewMode(
		struct FToolMenuSection& Section, const FName Name, const FText& Label, const FText& InToolTip, const FInputChord& Chord) const;

protected:
	/** Registers the menus that are not registered yet. */
	virtual void RegisterMenus() const;

	/** Makes the content of the menu. */
	TSharedRef<SWidget> GenerateViewMenuContent() const;

	/** The viewport of the toolbar. */
	TWeakPtr<SEditorViewport> Viewport;

private:
	FName MenuName;
	TSharedPtr<FExtender> MenuExtenders;
	TSharedPtr<FUICommandList> ViewModeCommands;
};
