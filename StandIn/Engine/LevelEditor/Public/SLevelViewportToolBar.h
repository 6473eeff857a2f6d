// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "SViewportToolBar.h"

class SLevelViewport;
struct FSlateBrush;

// The toolbar over a level viewport: viewport options, camera, view mode, show flags, and on the right maximize; the other buttons on
// the right are left out. Bottom, right and back views and the show flags are not drawn and cannot be chosen.
// Uncertain in the engine and settled here: using the toolbar changes neither the active viewport nor the client that is worked in.

/** Toolbar over a level viewport. */
class LEVELEDITOR_API SLevelViewportToolBar : public SViewportToolBar
{
public:
	SLATE_BEGIN_ARGS(SLevelViewportToolBar) {}
	SLATE_ARGUMENT(TSharedPtr<SLevelViewport>, Viewport)
	SLATE_END_ARGS()

	/** Makes the toolbar of a viewport. */
	void Construct(const FArguments& InArgs);

	/** The button that opens the View menu; its label is the view mode's name. */
	TSharedPtr<SEditorViewportToolbarMenu> GetViewMenuButton() const { return ViewMenuButton; }

	/** The viewport that the toolbar belongs to, or null once it is gone. */
	TSharedPtr<SLevelViewport> GetLevelViewport() const { return Viewport.Pin(); }

private:
	FText GetCameraLabel() const;
	TSharedRef<SWidget> MakeMaximizeButton();
	TSharedRef<SWidget> MakeMenu(FName MenuName);
	FReply OnToggleMaximize();
	const FSlateBrush* GetMaximizeImage() const;
	FText GetMaximizeToolTip() const;

	TWeakPtr<SLevelViewport> Viewport;
	TSharedPtr<SEditorViewportToolbarMenu> ViewMenuButton;
};
