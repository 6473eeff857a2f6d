// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/SystemCursors.h"

namespace TintmillHost
{
SDL_SystemCursor FindSystemCursor(EMouseCursor::Type Shape)
{
	switch (Shape)
	{
	case EMouseCursor::TextEditBeam:
		return SDL_SYSTEM_CURSOR_IBEAM;
	case EMouseCursor::ResizeLeftRight:
		return SDL_SYSTEM_CURSOR_SIZEWE;
	case EMouseCursor::ResizeUpDown:
		return SDL_SYSTEM_CURSOR_SIZENS;
	case EMouseCursor::ResizeSouthEast:
		return SDL_SYSTEM_CURSOR_SIZENWSE;
	case EMouseCursor::ResizeSouthWest:
		return SDL_SYSTEM_CURSOR_SIZENESW;
	case EMouseCursor::CardinalCross:
	case EMouseCursor::GrabHandClosed:
		return SDL_SYSTEM_CURSOR_SIZEALL;
	case EMouseCursor::Crosshairs:
	case EMouseCursor::EyeDropper:
		return SDL_SYSTEM_CURSOR_CROSSHAIR;
	case EMouseCursor::Hand:
	case EMouseCursor::GrabHand:
		return SDL_SYSTEM_CURSOR_HAND;
	case EMouseCursor::SlashedCircle:
		return SDL_SYSTEM_CURSOR_NO;
	default:
		return SDL_SYSTEM_CURSOR_ARROW;
	}
}

void FSystemCursors::Show(EMouseCursor::Type Shape)
{
	if (Shape == Shown)
	{
		return;
	}
	Shown = Shape;
	SDL_ShowCursor(Shape == EMouseCursor::None ? SDL_DISABLE : SDL_ENABLE);
	const SDL_SystemCursor Id = FindSystemCursor(Shape);
	std::unique_ptr<SDL_Cursor, FSdlRelease>& Cursor = Cursors[Id];
	if (!Cursor)
	{
		Cursor.reset(SDL_CreateSystemCursor(Id));
	}
	if (Cursor)
	{
		SDL_SetCursor(Cursor.get());
	}
}

void FSystemCursors::Abandon()
{
	for (auto& [Id, Cursor] : Cursors)
	{
		Cursor.release();
	}
}
}
