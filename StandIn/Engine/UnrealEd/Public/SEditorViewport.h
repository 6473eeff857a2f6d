// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Templates/SharedPointer.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FEditorViewportClient;
class FSceneViewport;
class SOverlay;
class SViewport;

// The widget of an editor's viewport. Construct makes the client first and gives it its viewport afterwards; the destructor
// takes the viewport from the client before it lets go of it. Commands and toolbars are for derived widgets.

/** The widget of an editor's viewport. */
class UNREALED_API SEditorViewport : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SEditorViewport) {}
	SLATE_END_ARGS()

	SEditorViewport();
	virtual ~SEditorViewport();

	/** Makes viewport widget, client and viewport, in this order, and then commands, toolbar and overlays. */
	void Construct(const FArguments& InArgs);

	/** Returns the client. */
	TSharedPtr<FEditorViewportClient> GetViewportClient() const { return Client; }

	/** Returns the viewport. */
	TSharedPtr<FSceneViewport> GetSceneViewport() { return SceneViewport; }

	/** Returns the commands. */
	const TSharedPtr<FUICommandList> GetCommandList() const { return CommandList; }

	/** Asks for a new picture on a later tick. */
	void Invalidate();

	/** Tells whether the viewport is seen. */
	virtual bool IsVisible() const;

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;

protected:
	/** Makes the client. */
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() = 0;

	/** Makes the toolbar, or null for none. */
	virtual TSharedPtr<SWidget> MakeViewportToolbar() { return TSharedPtr<SWidget>(); }

	/** Adds to what lies over the picture. */
	virtual void PopulateViewportOverlays(TSharedRef<SOverlay> Overlay);

	/** Fills the command list. */
	virtual void BindCommands() {}

	/** Shows the picture and takes the input. */
	TSharedPtr<SViewport> ViewportWidget;

	/** The viewport. */
	TSharedPtr<FSceneViewport> SceneViewport;

	/** The client; the widget is its only owner. */
	TSharedPtr<FEditorViewportClient> Client;

	/** What lies over the picture. */
	TSharedPtr<SOverlay> ViewportOverlay;

	/** The commands. */
	TSharedPtr<FUICommandList> CommandList;

	/** When the widget last ticked, in seconds. */
	double LastTickTime;
};
