// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/DisplayLoss.h"

#include <SDL_syswm.h>

// Xlib ends the program when it loses its server, unless it is told what else to do. It is found at run time, as SDL finds it.

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

template <typename FunctionType>
FunctionType FindFunction(void* Library, const char* Name)
{
	return reinterpret_cast<FunctionType>(SDL_LoadFunction(Library, Name));
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
	void* const Library = SDL_LoadObject("libX11.so.6");
	if (Library == nullptr)
	{
		return;
	}
	using FExitHandler = void (*)(Display*, void (*)(Display*, void*), void*);
	using FErrorHandler = int (*(*)(int (*)(Display*)))(Display*);
	if (const auto SetExitHandler = FindFunction<FExitHandler>(Library, "XSetIOErrorExitHandler"))
	{
		SetExitHandler(Info.info.x11.display, &NoteLoss, nullptr);
	}
	// The default one writes to the error output before it ends the program.
	if (const auto SetErrorHandler = FindFunction<FErrorHandler>(Library, "XSetIOErrorHandler"))
	{
		SetErrorHandler(&IgnoreError);
	}
#endif
}

bool IsDisplayLost()
{
	return bLost;
}
}
