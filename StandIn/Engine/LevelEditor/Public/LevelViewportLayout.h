// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Editor/UnrealEdTypes.h"
#include "Templates/SharedPointer.h"

class SLevelEditor;
class SLevelViewport;
class SLevelViewportPanes;
class SWidget;

// The arrangement of a viewport tab's panes. Every pane has a key made of the layout's name, the tab and the pane, such as
// "FourPanes2x2.Viewport 1.Viewport0". Left out: sizes saved between sessions, immersive mode, animation.
// Uncertain in the engine and settled here: the keys of two panes have the layout's name in front like all others.

/** The arrangement of a viewport tab's panes. */
class LEVELEDITOR_API FLevelViewportLayout : public TSharedFromThis<FLevelViewportLayout>
{
public:
	/** Makes a layout that is still without panes; the name must be one of GetLayoutNames. */
	explicit FLevelViewportLayout(const FName& InLayoutTypeName);
	virtual ~FLevelViewportLayout();
	FLevelViewportLayout(const FLevelViewportLayout&) = delete;
	FLevelViewportLayout& operator=(const FLevelViewportLayout&) = delete;

	/** Returns the names of all layouts. */
	static TArray<FName> GetLayoutNames();

	/** Makes the panes, first to last, for a tab such as "Viewport 1", and returns the widget that shows them. */
	TSharedRef<SWidget> BuildViewportLayout(const TSharedPtr<SLevelEditor>& InParentLevelEditor, const FString& LayoutString);

	/** Destroys the panes, first to last. */
	void DestroyViewports();

	/** Returns the layout's name. */
	const FName& GetLayoutTypeName() const { return LayoutTypeName; }

	/** Returns the panes, first to last. */
	const TArray<TSharedPtr<SLevelViewport>>& GetViewports() const { return Viewports; }

	/** Returns the pane of a name such as Viewport0, or null. */
	TSharedPtr<SLevelViewport> FindViewport(FName PaneName) const;

	/** Tells whether the pane of a key is seen: the tab is in front and no other pane fills it. */
	bool IsLevelViewportVisible(FName InViewportConfigKey) const;

	/** Lets the pane of a key fill the tab, or shows all panes again. */
	void RequestMaximizeViewport(FName ViewportToMaximize, bool bWantMaximize, bool bWantImmersive, bool bAllowAnimation = true);

	/** Tells whether a pane fills the tab. */
	bool IsViewportMaximized(const SLevelViewport& InViewport) const;

	/** Says whether the tab is in front. */
	void SetForeground(bool bInForeground) { bForeground = bInForeground; }

private:
	TSharedRef<SWidget> ArrangePanes() const;

	FName LayoutTypeName;
	TArray<TSharedPtr<SLevelViewport>> Viewports;
	TSharedPtr<SLevelViewportPanes> Panes;
	TWeakPtr<SLevelViewport> MaximizedViewport;
	bool bForeground;
};
