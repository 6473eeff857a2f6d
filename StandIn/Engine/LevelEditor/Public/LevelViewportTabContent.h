// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FLevelViewportLayout;
class SLevelEditor;
class SLevelViewport;
class SLevelViewportPanes;
class SWidget;

// A viewport tab of the level editor, "Viewport 1" to "Viewport 4", and its layout.
// Uncertain in the engine and settled here: the panes of the old layout are destroyed before those of the new one are made;
// choosing the present layout makes its panes anew; a pane in which play happens ends play first.

/** A viewport tab of the level editor. */
class LEVELEDITOR_API FLevelViewportTabContent
{
public:
	FLevelViewportTabContent();
	~FLevelViewportTabContent();
	FLevelViewportTabContent(const FLevelViewportTabContent&) = delete;
	FLevelViewportTabContent& operator=(const FLevelViewportTabContent&) = delete;

	/** Names the tab, such as "Viewport 1", and makes its first layout. */
	void Initialize(const TSharedPtr<SLevelEditor>& InParentLevelEditor, const FString& InLayoutString, const FName& ConfigurationName);

	/** Destroys the panes and makes those of a layout; an unknown name is fatal. */
	void SetViewportConfiguration(const FName& ConfigurationName);

	/** Destroys the panes. */
	void Close();

	/** Tells whether the tab has a layout. */
	bool IsViewportConfigurationSet(const FName& ConfigurationName) const;

	/** Returns the layout, or null before Initialize. */
	TSharedPtr<FLevelViewportLayout> GetActiveViewportLayout() const { return ActiveLevelViewportLayout; }

	/** Returns the panes, first to last. */
	TArray<TSharedPtr<SLevelViewport>> GetViewports() const;

	/** Returns the tab's name. */
	const FString& GetLayoutString() const { return LayoutString; }

	/** Returns the widget that shows the tab. */
	TSharedRef<SWidget> GetContent() const;

	/** Says whether the tab is in front. */
	void SetForeground(bool bInForeground);

private:
	void DestroyLayout();

	TWeakPtr<SLevelEditor> ParentLevelEditor;
	TSharedPtr<SLevelViewportPanes> Content;
	TSharedPtr<FLevelViewportLayout> ActiveLevelViewportLayout;
	FString LayoutString;
	bool bForeground;
};
