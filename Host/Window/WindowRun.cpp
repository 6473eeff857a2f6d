// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowRun.h"

#include "Host/Program/HostProgram.h"
#include "Host/Program/HostState.h"
#include "Host/Program/QuitRequest.h"
#include "Host/Program/Strings.h"
#include "Host/Window/DisplayLoss.h"
#include "Host/Window/FramePacer.h"
#include "Host/Window/SdlWindow.h"
#include "Host/Window/SystemClipboard.h"
#include "Host/Window/SystemCursors.h"
#include "Host/Window/WindowInput.h"

#include "CoreGlobals.h"
#include "Framework/Application/SlateApplication.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace TintmillHost
{
namespace
{
/** Seconds from some start. */
double GetNow()
{
	return static_cast<double>(SDL_GetPerformanceCounter()) / static_cast<double>(SDL_GetPerformanceFrequency());
}

/** Between two looks at the files, in seconds; where a look takes long, many times as long as it takes. */
constexpr double PollSeconds = 0.5;
constexpr double PollRestFactor = 50.0;

/** A blinking caret changes fewer pixels at once than this, and needs no frames between its blinks. */
constexpr int64 CaretPixels = 1024;

/** The window and the program while they run together. */
class FWindowRun
{
public:
	FWindowRun(FHostProgram& InProgram, FSdlVideo& InVideo, FSdlWindow& InDisplay)
		: Program(InProgram)
		, Video(InVideo)
		, Display(InDisplay)
		, Editor(InProgram.GetWindow())
		, Input(InDisplay.GetId(), Editor.GetSlateWindow())
		, Pacer(GetNow())
	{}

	/** Runs until the window is closed in any way. */
	void Run();

private:
	bool MustLeave();
	void WaitForEvents();
	void Handle(const SDL_Event& Event);
	void FitToDisplay();
	void PollFiles();
	void RunFrame();
	void ShowChanges();

	FHostProgram& Program;
	FSdlVideo& Video;
	FSdlWindow& Display;
	FEditorWindow& Editor;
	FWindowInput Input;
	FFramePacer Pacer;
	FSystemCursors Cursors;
	FSystemClipboard Clipboard;
	FPicture Picture;
	double NextPoll = 0.0;
	double LastPoll = 0.0;
	bool bCloseAsked = false;
	bool bShowAll = true;
};

void FWindowRun::Run()
{
	FitToDisplay();
	SDL_StartTextInput();
	while (!MustLeave())
	{
		if (Pacer.GetWait(GetNow()) < 0.001)
		{
			RunFrame();
		}
		WaitForEvents();
	}
	if (IsDisplayLost())
	{
		Video.Abandon();
		Display.Abandon();
		std::cerr << "The display has gone away; the editor closes, and everything is saved.\n";
	}
}

bool FWindowRun::MustLeave()
{
	return bCloseAsked || IsEngineExitRequested() || FQuitRequest::IsRequested() || IsDisplayLost();
}

void FWindowRun::WaitForEvents()
{
	const int Milliseconds = static_cast<int>(std::ceil(Pacer.GetWait(GetNow()) * 1000.0));
	SDL_Event Event;
	if (SDL_WaitEventTimeout(&Event, Milliseconds) == 0)
	{
		return;
	}
	do
	{
		// Of moves that follow each other only the last counts.
		SDL_Event Next;
		while (Event.type == SDL_MOUSEMOTION && SDL_PeepEvents(&Next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1
			&& Next.type == SDL_MOUSEMOTION)
		{
			SDL_PollEvent(&Event);
		}
		Handle(Event);
	} while (!MustLeave() && SDL_PollEvent(&Event) != 0);
}

void FWindowRun::Handle(const SDL_Event& Event)
{
	if (Input.Handle(Event))
	{
		Pacer.Wake(GetNow());
	}
	if (Event.type == SDL_QUIT)
	{
		bCloseAsked = true;
	}
	else if (Event.type == SDL_WINDOWEVENT)
	{
		switch (Event.window.event)
		{
		case SDL_WINDOWEVENT_CLOSE:
			bCloseAsked = true;
			break;
		case SDL_WINDOWEVENT_EXPOSED:
			bShowAll = true;
			Pacer.Wake(GetNow());
			break;
		case SDL_WINDOWEVENT_SIZE_CHANGED:
		case SDL_WINDOWEVENT_DISPLAY_CHANGED:
			FitToDisplay();
			break;
		default:
			break;
		}
	}
}

void FWindowRun::FitToDisplay()
{
	FSlateApplication::Get().SetApplicationScale(static_cast<float>(Display.FindScale()));
	Input.SetPixelsPerPoint(Display.GetPixelsPerPoint());
	Editor.Resize(Display.GetSize());
	bShowAll = true;
	Pacer.Wake(GetNow());
}

void FWindowRun::PollFiles()
{
	const double Start = GetNow();
	if (Start >= NextPoll)
	{
		Program.PollFiles(LastPoll > 0.0 ? Start - LastPoll : 0.0);
		LastPoll = Start;
		const double Taken = GetNow() - Start;
		NextPoll = Start + std::max(PollSeconds, PollRestFactor * Taken);
	}
}

void FWindowRun::RunFrame()
{
	const double Step = Pacer.BeginFrame(GetNow());
	PollFiles();
	TickState();
	Program.TickFrame(Step);
	Cursors.Show(FSlateApplication::Get().QueryCursor());
	ShowChanges();
}

void FWindowRun::ShowChanges()
{
	TArray<FIntRect> Areas = Editor.UpdatePicture(Picture);
	int64 Pixels = 0;
	for (const FIntRect& Area : Areas)
	{
		Pixels += Area.Area();
	}
	if (Pixels > CaretPixels)
	{
		Pacer.Wake(GetNow());
	}
	if (bShowAll)
	{
		Areas = {FIntRect(0, 0, Picture.Width, Picture.Height)};
	}
	// A window that changes its size right now takes the picture with the next frame.
	bShowAll = Areas.Num() > 0 && !Display.Show(Picture, Areas);
}
}

bool FindDisplay(std::string& OutWhy)
{
	const FSdlVideo Video;
	if (!Video.GetProblem().empty())
	{
		OutWhy = "No window can be opened: " + Video.GetProblem() + ".";
	}
	return Video.GetProblem().empty();
}

int RunInWindow(FHostProgram& Program)
{
	FSdlVideo Video;
	if (!Video.GetProblem().empty())
	{
		std::cerr << "No window can be opened: " << Video.GetProblem() << ".\n";
		return 2;
	}
	FEditorWindow& Editor = Program.GetWindow();
	FSdlWindow Display(ToUtf8(Editor.GetSlateWindow()->GetTitle().ToString()), Editor.GetSlateWindow()->GetSizeInScreen().IntPoint());
	if (!Display.GetProblem().empty())
	{
		std::cerr << "The window cannot be opened: " << Display.GetProblem() << ".\n";
		return 2;
	}
	WatchDisplay(SDL_GetWindowFromID(Display.GetId()));
	FWindowRun(Program, Video, Display).Run();
	return 0;
}
}
