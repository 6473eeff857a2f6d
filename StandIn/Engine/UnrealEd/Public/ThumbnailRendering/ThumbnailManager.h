// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Of the thumbnail manager only the shapes that thumbnails are drawn on; no thumbnails are rendered here.

/** Shape that a thumbnail is drawn on. */
enum EThumbnailPrimType
{
	TPT_None,
	TPT_Sphere,
	TPT_Plane,
	TPT_Cube,
	TPT_Cylinder
};
