// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/DisplayLoss.h"

#include <SDL_syswm.h>

// Xlib ends the program when a request fails or its server is lost, unless it is told what else to do. It is found at run time, as SDL finds it.

namespace TintmillHost
{
namespace
{
bool bLost = false;

#if defined(SDL_VIDEO_DRIVER_X11)
void NoteLoss(Display*, void*)
{
	bLost = true;
}

int IgnoreError(Display*)
{
	return 0;
}

int IgnoreRequestError(Display*, XErrorEvent*)
{
	// Such as one about a window of another program that has just gone.
	return 0;
}

/** A function of Xlib; null where there is none. */
template <typename FunctionType>
FunctionType FindFunction(const char* Name)
{
	static void* const Library = SDL_LoadObject("libX11.so.6");
	return Library != nullptr ? reinterpret_cast<FunctionType>(SDL_LoadFunction(Library, Name)) : nullptr;
}
#endif
}

void PassOverDisplayErrors()
{
#if defined(SDL_VIDEO_DRIVER_X11)
	using FSetHandler = int (*(*)(int (*)(Display*, XErrorEvent*)))(Display*, XErrorEvent*);
	if (const auto SetHandler = FindFunction<FSetHandler>("XSetErrorHandler"))
	{
		SetHandler(&IgnoreRequestError);
	}
#endif
}

void WatchDisplay([[maybe_unused]] SDL_Window* Window)
{
#if defined(SDL_VIDEO_DRIVER_X11)
	SDL_SysWMinfo Info;
	SDL_VERSION(&Info.version);
	if (SDL_GetWindowWMInfo(Window, &Info) != SDL_TRUE || Info.subsystem != SDL_SYSWM_X11)
	{
		return;
	}
	using FSetExitHandler = void (*)(Display*, void (*)(Display*, void*), void*);
	using FSetHandler = int (*(*)(int (*)(Display*)))(Display*);
	if (const auto SetExitHandler = FindFunction<FSetExitHandler>("XSetIOErrorExitHandler"))
	{
		SetExitHandler(Info.info.x11.display, &NoteLoss, nullptr);
	}
	// The default one writes to the error output before it ends the program.
	if (const auto SetHandler = FindFunction<FSetHandler>("XSetIOErrorHandler"))
	{
		SetHandler(&IgnoreError);
	}
#endif
}

bool IsDisplayLost()
{
	return bLost;
}
}
