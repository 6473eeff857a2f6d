// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "ILevelEditor.h"
#include "Templates/SharedPointer.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

class FLevelViewportTabContent;
class SLevelViewportPanes;

/** The level editor: its viewport tabs, one of them in front. */
class SLevelEditor : public ILevelEditor
{
public:
	SLATE_BEGIN_ARGS(SLevelEditor) {}
	SLATE_END_ARGS()

	SLevelEditor();
	virtual ~SLevelEditor();

	/** Makes a level editor without tabs. */
	void Construct(const FArguments& InArgs);

	/** Opens a tab in a layout and brings it to the front; an open tab is only brought to the front. */
	TSharedRef<FLevelViewportTabContent> OpenTab(int32 TabNumber, const FName& LayoutName);

	/** Closes a tab; the first one left comes to the front. */
	void CloseTab(int32 TabNumber);

	/** Closes all tabs. */
	void CloseAllTabs();

	/** Returns an open tab, or null. */
	TSharedPtr<FLevelViewportTabContent> FindTab(int32 TabNumber) const;

	/** Returns the tab of a pane, or null. */
	TSharedPtr<FLevelViewportTabContent> FindTabOf(const TSharedPtr<SLevelViewport>& Viewport) const;

	/** Returns the numbers of the open tabs in the order in which they were opened. */
	TArray<int32> GetTabNumbers() const;

	/** Returns the number of the tab in front, 0 without tabs. */
	int32 GetFrontTabNumber() const;

	virtual TSharedPtr<IAssetViewport> GetActiveViewportInterface() override;
	virtual TArray<TSharedPtr<SLevelViewport>> GetViewports() const override;

	/** Returns the pane that is worked in, else the first that is seen, else null. */
	TSharedPtr<SLevelViewport> GetActiveLevelViewport() const;

private:
	void BringToFront(const TSharedPtr<FLevelViewportTabContent>& Tab);

	TArray<TSharedPtr<FLevelViewportTabContent>> ViewportTabs;
	TWeakPtr<FLevelViewportTabContent> FrontTab;
	TSharedPtr<SLevelViewportPanes> TabWell;
};
