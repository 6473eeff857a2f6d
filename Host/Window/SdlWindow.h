// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/Picture.h"

#include <SDL.h>

#include <memory>
#include <string>

// The one window on the display.

namespace TintmillHost
{
/** Lets go of SDL's objects. */
struct FSdlRelease
{
	void operator()(SDL_Window* Window) const { SDL_DestroyWindow(Window); }
	void operator()(SDL_Surface* Surface) const { SDL_FreeSurface(Surface); }
	void operator()(SDL_Cursor* Cursor) const { SDL_FreeCursor(Cursor); }
};

/** The window system while it is open. */
class FSdlVideo
{
public:
	/** Opens it; GetProblem says whether it could. */
	FSdlVideo();
	~FSdlVideo();
	FSdlVideo(const FSdlVideo&) = delete;
	FSdlVideo& operator=(const FSdlVideo&) = delete;

	/** Why it could not be opened; empty if it could. */
	const std::string& GetProblem() const { return Problem; }

	/** Says that the display went away: nothing more is said to it, not even good-bye. */
	void Abandon() { bAbandoned = true; }

private:
	std::string Problem;
	bool bAbandoned = false;
};

/** A window whose picture is made in memory. */
class FSdlWindow
{
public:
	/** Opens a window of a size in pixels, as far as the display has room for it; GetProblem says whether it could. */
	FSdlWindow(const std::string& Title, const FIntPoint& Size);

	/** Why it could not be opened; empty if it could. */
	const std::string& GetProblem() const { return Problem; }

	/** The size in pixels of the display. */
	FIntPoint GetSize() const;

	/** Pixels of the display for one of the units that the window system gives the mouse's places in. */
	double GetPixelsPerPoint() const;

	/** Pixels of the display for a unit of the user interface, as this display's fineness asks for. */
	double FindScale() const;

	/** Shows the changed areas of a picture that is as large as the window. Says whether the display took it. */
	bool Show(FPicture& Picture, const TArray<FIntRect>& Areas);

	/** The number that events name the window by. */
	Uint32 GetId() const { return SDL_GetWindowID(Window.get()); }

	/** Lets go of the window without telling a display that went away. */
	void Abandon() { Window.release(); }

private:
	std::unique_ptr<SDL_Window, FSdlRelease> Window;
	std::string Problem;
};
}
