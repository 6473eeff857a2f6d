// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "GenericPlatform/ICursor.h"
#include "Host/Window/SdlWindow.h"

#include <map>
#include <memory>

// The mouse's shapes.

namespace TintmillHost
{
/** Shows the mouse in the shape that what is under it asks for. */
class FSystemCursors
{
public:
	/** Shows a shape; the one that is shown already costs nothing. */
	void Show(EMouseCursor::Type Shape);

	/** Lets go of the shapes without telling a display that went away. */
	void Abandon();

private:
	std::map<SDL_SystemCursor, std::unique_ptr<SDL_Cursor, FSdlRelease>> Cursors;
	EMouseCursor::Type Shown = EMouseCursor::Default;
};

/** The window system's shape that is nearest to one of the engine's. */
SDL_SystemCursor FindSystemCursor(EMouseCursor::Type Shape);
}
