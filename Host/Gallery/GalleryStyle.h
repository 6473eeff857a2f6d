// Copyright The Tintmill authors. All rights reserved.

#pragma once

// How the page looks and what it does when it is used.

namespace TintmillHost
{
/** The page's style sheet, without its pictures. All greys are neutral, so that they do not tint the eye for the pictures. */
extern const char* const GalleryStyle;

/** The page's script, free of characters that XML would have to escape. */
extern const char* const GalleryScript;
}
