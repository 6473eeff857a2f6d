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
// "FourPanes2x2.Viewport 1.Viewport0". Handles between the panes share the space anew. Left out: sizes saved between sessions
// (GetPaneShares and SetPaneShares are for whoever keeps them), immersive mode, animation.
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

	/** Returns the pane that fills the tab, or null. */
	TSharedPtr<SLevelViewport> GetMaximizedViewport() const { return MaximizedViewport.Pin(); }

	/** Says whether the tab is in front. */
	void SetForeground(bool bInForeground) { bForeground = bInForeground; }

	/** Returns how the handles divide the panes: for each row or column of panes the weights, which sum to one; none for one pane. */
	const TArray<float>& GetPaneShares() const { return Shares; }

	/** Moves the handles; false, and nothing happens, when the number of weights is another one or one is not positive. */
	bool SetPaneShares(const TArray<float>& InShares);

private:
	typedef TArray<TSharedRef<SWidget>> FWidgets;

	TSharedRef<SWidget> ArrangePanes();
	TSharedRef<SWidget> Divide(const FWidgets& Widgets, bool bSideBySide, int32 FirstShare);
	float GetShare(int32 Index) const { return Shares[Index]; }
	void OnShareChanged(float NewShare, int32 Index) { Shares[Index] = NewShare; }
	void OnDragged();

	FName LayoutTypeName;
	TArray<TSharedPtr<SLevelViewport>> Viewports;
	TSharedPtr<SLevelViewportPanes> Panes;
	TWeakPtr<SLevelViewport> MaximizedViewport;

	/** The weights, row by row; rows whose handles move together have theirs once. */
	TArray<float> Shares;
	bool bForeground;
};
