// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/SdlWindow.h"

#include "Host/Window/DisplayLoss.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace TintmillHost
{
namespace
{
/** Dots an inch at which a unit is a pixel. */
constexpr double PlainDotsPerInch = 96.0;

FIntPoint LimitToDisplay(const FIntPoint& Size)
{
	SDL_Rect Room;
	if (SDL_GetDisplayUsableBounds(0, &Room) != 0)
	{
		return Size;
	}
	return FIntPoint(std::min(Size.X, Room.w), std::min(Size.Y, Room.h));
}

/** Whether the environment names any place where windows could be; the library complains on its own where none is. */
bool IsAnythingToAsk()
{
	const auto IsSet = [](const char* Name) {
		const char* const Value = SDL_getenv(Name);
		return Value && *Value;
	};
	return IsSet("SDL_VIDEODRIVER") || IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("XDG_RUNTIME_DIR");
}

/** Whether the library has fallen back to windows that nobody can see; not if the user has asked for such. */
bool IsNobodyWatching()
{
	const char* const Driver = SDL_GetCurrentVideoDriver();
	return !SDL_getenv("SDL_VIDEODRIVER") && Driver
		&& (SDL_strcmp(Driver, "offscreen") == 0 || SDL_strcmp(Driver, "dummy") == 0 || SDL_strcmp(Driver, "evdev") == 0);
}
}

FSdlVideo::FSdlVideo()
{
	// Signals are the program's own affair. Windows of other programs may stay on top, and a screen saver may come.
	SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
	SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
	SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
	SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
	SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
	PassOverDisplayErrors();
	if (!IsAnythingToAsk())
	{
		Problem = "there is no display";
		return;
	}
	if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0)
	{
		Problem = SDL_GetError();
	}
	else if (IsNobodyWatching())
	{
		Problem = "there is no display";
		SDL_QuitSubSystem(SDL_INIT_VIDEO);
	}
}

FSdlVideo::~FSdlVideo()
{
	if (Problem.empty() && !bAbandoned)
	{
		SDL_QuitSubSystem(SDL_INIT_VIDEO);
	}
}

FSdlWindow::FSdlWindow(const std::string& Title, const FIntPoint& Size)
{
	const FIntPoint Fitting = LimitToDisplay(Size);
	Window.reset(SDL_CreateWindow(Title.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, Fitting.X, Fitting.Y,
		SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
	if (!Window || SDL_GetWindowSurface(Window.get()) == nullptr)
	{
		Problem = SDL_GetError();
		return;
	}
	// What was asked for are pixels; the window system may count larger units.
	const double PixelsPerPoint = GetPixelsPerPoint();
	if (PixelsPerPoint > 1.0)
	{
		SDL_SetWindowSize(Window.get(), static_cast<int>(std::lround(Fitting.X / PixelsPerPoint)),
			static_cast<int>(std::lround(Fitting.Y / PixelsPerPoint)));
	}
}

FIntPoint FSdlWindow::GetSize() const
{
	int Width = 0;
	int Height = 0;
	SDL_GetWindowSizeInPixels(Window.get(), &Width, &Height);
	return FIntPoint(std::max(1, Width), std::max(1, Height));
}

double FSdlWindow::GetPixelsPerPoint() const
{
	int Width = 0;
	int Height = 0;
	SDL_GetWindowSize(Window.get(), &Width, &Height);
	return Width > 0 ? static_cast<double>(GetSize().X) / Width : 1.0;
}

double FSdlWindow::FindScale() const
{
	if (const double PixelsPerPoint = GetPixelsPerPoint(); PixelsPerPoint > 1.0)
	{
		return PixelsPerPoint;
	}
	float DotsPerInch = 0.0f;
	const int Display = SDL_GetWindowDisplayIndex(Window.get());
	if (Display < 0 || SDL_GetDisplayDPI(Display, &DotsPerInch, nullptr, nullptr) != 0)
	{
		return 1.0;
	}
	// Only a display of half as many dots again is fine enough for larger letters; steps of a half keep lines even.
	return std::clamp(std::floor(static_cast<double>(DotsPerInch) / PlainDotsPerInch * 2.0) / 2.0, 1.0, 4.0);
}

bool FSdlWindow::Show(FPicture& Picture, const TArray<FIntRect>& Areas)
{
	SDL_Surface* const Target = SDL_GetWindowSurface(Window.get());
	const std::unique_ptr<SDL_Surface, FSdlRelease> Source(SDL_CreateRGBSurfaceWithFormatFrom(
		Picture.Pixels.GetData(), Picture.Width, Picture.Height, 32, Picture.Width * 4, SDL_PIXELFORMAT_RGB888));
	if (Target == nullptr || !Source)
	{
		return false;
	}
	std::vector<SDL_Rect> Rects;
	for (const FIntRect& Area : Areas)
	{
		SDL_Rect Rect{Area.Min.X, Area.Min.Y, Area.Width(), Area.Height()};
		SDL_Rect Place = Rect;
		SDL_BlitSurface(Source.get(), &Rect, Target, &Place);
		if (Place.w > 0 && Place.h > 0)
		{
			Rects.push_back(Place);
		}
	}
	return Rects.empty() || SDL_UpdateWindowSurfaceRects(Window.get(), Rects.data(), static_cast<int>(Rects.size())) == 0;
}
}
