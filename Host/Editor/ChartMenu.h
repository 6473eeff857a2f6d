// Copyright The Tintmill authors. All rights reserved.

#pragma once

// The entry "Color Chart" in the camera menu of the panes.

namespace TintmillHost
{
class FSceneViews;

/** While it lives, a pane's camera menu can show the chart of colors in place of the scene. */
class FChartMenu
{
public:
	/** Extends the menu; tool menus must be there, and the views must outlive the object. */
	explicit FChartMenu(FSceneViews& InViews);
	~FChartMenu();
	FChartMenu(const FChartMenu&) = delete;
	FChartMenu& operator=(const FChartMenu&) = delete;

private:
	FSceneViews& Views;
};
}
