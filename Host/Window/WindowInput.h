// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"
#include "Widgets/SWindow.h"

#include <SDL.h>

#include <string>
#include <vector>

// What a person does to the window on the display, told to Slate.

namespace TintmillHost
{
/** Passes the window system's events on to the application of the user interface. */
class FWindowInput
{
public:
	/** Passes events of an SDL window to the application whose main window is given. */
	FWindowInput(Uint32 InWindowId, const TSharedRef<SWindow>& InMainWindow);

	/** Sets the desktop's pixels for one of the units that events give places in. */
	void SetPixelsPerPoint(double InPixelsPerPoint) { PixelsPerPoint = InPixelsPerPoint; }

	/** Passes an event on; says whether it was one of those that this knows: mouse, keyboard, focus, dropped files. */
	bool Handle(const SDL_Event& Event);

	/** Takes the files that were dropped since the last call, when all of them have come. */
	std::vector<std::string> TakeDroppedFiles();

private:
	FVector2D ToDesktop(int X, int Y) const;
	FPointerEvent MakePointerEvent(const FVector2D& Place, const FKey& Button, float Wheel);
	void HandleMotion(const SDL_MouseMotionEvent& Event);
	void HandleButton(const SDL_MouseButtonEvent& Event);
	void HandleWheel(const SDL_MouseWheelEvent& Event);
	void HandleKey(const SDL_KeyboardEvent& Event);
	void HandleText(const SDL_TextInputEvent& Event);
	bool HandleWindow(const SDL_WindowEvent& Event);
	bool HandleDrop(const SDL_DropEvent& Event);
	void SetActive(bool bActive);

	Uint32 WindowId;
	TWeakPtr<SWindow> MainWindow;
	TWeakPtr<SWindow> LastActiveWindow;
	double PixelsPerPoint = 1.0;
	FVector2D LastPlace = FVector2D(0.0f, 0.0f);
	TSet<FKey> PressedButtons;
	std::vector<std::string> Dropping;
	std::vector<std::string> Dropped;
};
}
