// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>

// What a person has arranged in the window around the level editor. What is inside the level editor - tabs, layouts, handles, the pane
// that fills a tab - is had from StandIn/LevelEditorPanes.h.

namespace TintmillHost
{
/** The area below the level editor. */
struct FFrameState
{
	/** The share of the height that the area has when it is seen, 0.05 to 0.95. */
	float BottomShare = 0.3f;

	/** Whether its tabs are open. */
	bool bContentBrowserOpen = true;
	bool bOutputLogOpen = true;

	/** The name of the tab in front: "ContentBrowser" or "OutputLog". */
	std::string FrontTab = "ContentBrowser";

	bool operator==(const FFrameState& Other) const = default;
};
}
