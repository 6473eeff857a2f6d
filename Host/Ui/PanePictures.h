// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"

#include <map>

// The pictures of the level editor's panes for the window's painter.

namespace TintmillHost
{
/** Finds what a pane shows. */
class FPanePictures
{
public:
	/** What is on the pane's screen; where the picture's pixels are finer than the screen's, the same scene and look drawn in that size. */
	FPictureView Find(const ISlateViewport& Viewport, const FIntPoint& DeviceSize);

	/** Lets go of the pictures that were drawn. */
	void Forget() { Drawn.clear(); }

private:
	std::map<const ISlateViewport*, FPicture> Drawn;
};
}
