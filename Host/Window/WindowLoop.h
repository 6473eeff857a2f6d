// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"
#include "Host/Window/FramePacer.h"
#include "Host/Window/FrameTimes.h"
#include "Host/Window/SdlWindow.h"
#include "Host/Window/SystemClipboard.h"
#include "Host/Window/SystemCursors.h"
#include "Host/Window/WindowInput.h"

#include <functional>

// The program and its window on the display while they run together.

namespace TintmillHost
{
class FEditorWindow;
class FHostProgram;

/** Passes events on, runs frames when they are due, and shows what changed. */
class FWindowLoop
{
public:
	/** Joins a program whose editor has started with a window that is open. */
	FWindowLoop(FHostProgram& InProgram, FSdlWindow& InDisplay);

	/** Runs until the window is closed in any way. */
	void Run();

	/** Lets go of what the display had, without telling a display that went away. */
	void Abandon();

private:
	bool MustLeave() const;
	void WaitForEvents();
	void Handle(const SDL_Event& Event);
	void HandleWindow(const SDL_WindowEvent& Event);
	void FitToDisplay();
	void PollFiles();
	void RunFrame();

	/** Does work that may take long with its progress in sight; only between frames, as it paints them. */
	void WorkInSight(const std::function<void()>& Work);

	/** Paints what Slate shows now and puts it on the display; no editor frame is run. */
	void ShowProgress();
	void KeepSize();

	FHostProgram& Program;
	FSdlWindow& Display;
	FEditorWindow& Editor;
	FWindowInput Input;
	FFramePacer Pacer;
	FFrameTimes FrameTimes;
	FSystemCursors Cursors;
	FSystemClipboard Clipboard;
	FPicture Picture;
	double LastPoll;
	double NextPoll;
	bool bCloseAsked = false;
	bool bShowAll = true;
	bool bSizeChanged = false;
	bool bPictureShown = false;
};
}
