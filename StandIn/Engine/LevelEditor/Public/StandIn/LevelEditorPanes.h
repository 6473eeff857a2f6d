// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Templates/SharedPointer.h"

class SLevelViewport;
class SWidget;

// Not in the engine: opening the level editor and working its tabs, layouts and panes, as a person would with the mouse.
// All functions but OpenLevelEditor, IsLevelEditorOpen and OnPanesArranged need an open level editor; without one they are fatal.

namespace StandIn
{
/** Opens the level editor with the tab "Viewport 1" in a layout, one pane (such as Viewport1) filling it or None; returns its widget. */
LEVELEDITOR_API TSharedRef<SWidget> OpenLevelEditor(FName LayoutName, FName MaximizedPane);

/** Destroys all panes and the level editor, whoever still holds its widget. */
LEVELEDITOR_API void CloseLevelEditor();

/** Tells whether there is a level editor. */
LEVELEDITOR_API bool IsLevelEditorOpen();

/** Opens tab number 2 to 4 in a layout and brings it to the front; an open tab is only brought to the front. */
LEVELEDITOR_API void OpenViewportTab(int32 TabNumber, FName LayoutName);

/** Closes a tab and destroys its panes; the first tab comes to the front. */
LEVELEDITOR_API void CloseViewportTab(int32 TabNumber);

/** Gives an open tab another layout; an unknown name is fatal. */
LEVELEDITOR_API void SetViewportLayout(FName LayoutName, int32 TabNumber = 1);

/** Returns the layout of an open tab. */
LEVELEDITOR_API FName GetViewportLayout(int32 TabNumber = 1);

/** Returns the names of all layouts. */
LEVELEDITOR_API TArray<FName> GetViewportLayoutNames();

/** Returns all panes, tab by tab, first to last. Do not keep the result. */
LEVELEDITOR_API TArray<TSharedPtr<SLevelViewport>> GetPanes();

/** Returns the pane of a key such as "FourPanes2x2.Viewport 1.Viewport0", or null. Do not keep the result. */
LEVELEDITOR_API TSharedPtr<SLevelViewport> FindPane(FName ConfigKey);

/** Makes the pane of a key the one that is worked in; false when there is no such pane. */
LEVELEDITOR_API bool ActivatePane(FName ConfigKey);

/** Lets the pane of a key fill its tab, or shows all panes again; false when there is no such pane. */
LEVELEDITOR_API bool MaximizePane(FName ConfigKey, bool bMaximize);

/** Returns the numbers of the open tabs in the order in which they were opened. */
LEVELEDITOR_API TArray<int32> GetViewportTabs();

/** Returns the number of the tab in front. */
LEVELEDITOR_API int32 GetFrontViewportTab();

/** Returns how the handles of an open tab divide its panes: for each row or column the weights, which sum to one. */
LEVELEDITOR_API TArray<float> GetPaneShares(int32 TabNumber = 1);

/** Moves the handles of an open tab; false when its layout has another number of weights or one is not positive. */
LEVELEDITOR_API bool SetPaneShares(const TArray<float>& Shares, int32 TabNumber = 1);

/** Returns the pane that fills an open tab, or null. Do not keep the result. */
LEVELEDITOR_API TSharedPtr<SLevelViewport> GetMaximizedPane(int32 TabNumber = 1);

/** Fires after tabs, layouts, handles or the pane that fills a tab have changed; a drag fires once, at its end. */
LEVELEDITOR_API FSimpleMulticastDelegate& OnPanesArranged();
}
