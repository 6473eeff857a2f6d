// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "SViewportToolBar.h"

class SLevelViewport;

// The toolbar over a level viewport: viewport options, camera, view mode, show flags. Only the view mode button has a menu; the
// buttons on the right are left out.
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

private:
	FText GetCameraLabel() const;

	TWeakPtr<SLevelViewport> Viewport;
	TSharedPtr<SEditorViewportToolbarMenu> ViewMenuButton;
};
