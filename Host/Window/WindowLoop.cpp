// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowLoop.h"

#include "Host/Program/DropFiles.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Progress.h"
#include "Host/Program/QuitRequest.h"
#include "Host/Program/Strings.h"
#include "Host/Window/DisplayLoss.h"
#include "Host/Window/WindowSize.h"

#include "CoreGlobals.h"
#include "Framework/Application/SlateApplication.h"
#include "Logging/LogMacros.h"

#include <algorithm>
#include <cmath>

DEFINE_LOG_CATEGORY_STATIC(LogHostWindow, Log, All);

namespace TintmillHost
{
namespace
{
/** Seconds from some start. */
double GetNow()
{
	return static_cast<double>(SDL_GetPerformanceCounter()) / static_cast<double>(SDL_GetPerformanceFrequency());
}

/** A frame is not waited for that is due within this time, in seconds: waits are in whole milliseconds. */
constexpr double DueSeconds = 0.001;

/** Between two looks at the files, in seconds; where a look takes long, many times as long as it takes, but no longer than a person waits. */
constexpr double PollSeconds = 0.5;
constexpr double PollRestFactor = 50.0;
constexpr double MaxPollSeconds = 2.0;

/** A blinking caret changes fewer pixels at once than this, and needs no frames between its blinks. */
constexpr int64 CaretPixels = 1024;
}

FWindowLoop::FWindowLoop(FHostProgram& InProgram, FSdlWindow& InDisplay)
	: Program(InProgram)
	, Display(InDisplay)
	, Editor(InProgram.GetWindow())
	, Input(InDisplay.GetId(), Editor.GetSlateWindow())
	, Pacer(GetNow())
	, LastPoll(GetNow())
	, NextPoll(LastPoll)
{}

void FWindowLoop::Run()
{
	Program.GetSceneViews().HurryWhileMoving();
	FitToDisplay();
	SDL_StartTextInput();
	while (!MustLeave())
	{
		if (Pacer.GetWait(GetNow()) < DueSeconds)
		{
			RunFrame();
		}
		WaitForEvents();
	}
	KeepSize();
	UE_LOG(LogHostWindow, Log, TEXT("%s"), *FromUtf8(FrameTimes.Describe()));
}

void FWindowLoop::Abandon()
{
	Cursors.Abandon();
}

bool FWindowLoop::MustLeave() const
{
	return bCloseAsked || IsEngineExitRequested() || FQuitRequest::IsRequested() || IsDisplayLost();
}

void FWindowLoop::WaitForEvents()
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

void FWindowLoop::Handle(const SDL_Event& Event)
{
	if (Input.Handle(Event))
	{
		Pacer.Wake(GetNow());
		if (const std::vector<std::string> Files = Input.TakeDroppedFiles(); !Files.empty())
		{
			// What cannot be added makes a notice.
			WorkInSight([&Files]() { AddDroppedFiles(Files); });
			NextPoll = GetNow();
		}
	}
	if (Event.type == SDL_QUIT)
	{
		bCloseAsked = true;
	}
	else if (Event.type == SDL_WINDOWEVENT)
	{
		HandleWindow(Event.window);
	}
}

void FWindowLoop::HandleWindow(const SDL_WindowEvent& Event)
{
	switch (Event.event)
	{
	case SDL_WINDOWEVENT_CLOSE:
		bCloseAsked = true;
		break;
	case SDL_WINDOWEVENT_EXPOSED:
		bShowAll = true;
		Pacer.Wake(GetNow());
		break;
	case SDL_WINDOWEVENT_SIZE_CHANGED:
		bSizeChanged = true;
		FitToDisplay();
		break;
	case SDL_WINDOWEVENT_DISPLAY_CHANGED:
		FitToDisplay();
		break;
	default:
		break;
	}
}

void FWindowLoop::FitToDisplay()
{
	const double Scale = Program.GetOptions().Scale;
	FSlateApplication::Get().SetApplicationScale(static_cast<float>(Scale > 0.0 ? Scale : Display.FindScale()));
	Input.SetPixelsPerPoint(Display.GetPixelsPerPoint());
	Editor.Resize(Display.GetSize());
	bShowAll = true;
	Pacer.Wake(GetNow());
}

void FWindowLoop::KeepSize()
{
	if (bSizeChanged)
	{
		bSizeChanged = false;
		KeepWindowSize(Display.GetSize());
	}
}

void FWindowLoop::PollFiles()
{
	const double Start = GetNow();
	if (Start >= NextPoll)
	{
		WorkInSight([this, Start]() { Program.PollFiles(Start - LastPoll); });
		LastPoll = Start;
		const double End = GetNow();
		NextPoll = End + std::clamp(PollRestFactor * (End - Start), PollSeconds, MaxPollSeconds);
	}
}

void FWindowLoop::RunFrame()
{
	const double Start = GetNow();
	PollFiles();
	Program.TickFrame(Pacer.BeginFrame(Start));
	Cursors.Show(FSlateApplication::Get().QueryCursor());
	const double Ticked = GetNow();
	TArray<FIntRect> Areas = Editor.UpdatePicture(Picture);
	const double Painted = GetNow();

	int64 Pixels = 0;
	for (const FIntRect& Area : Areas)
	{
		Pixels += Area.Area();
	}
	if (bShowAll)
	{
		Areas = {FIntRect(0, 0, Picture.Width, Picture.Height)};
	}
	// A window that changes its size right now takes the picture with the next frame.
	bShowAll = Areas.Num() > 0 && !Display.Show(Picture, Areas);
	const double Shown = GetNow();
	if (!bPictureShown && !bShowAll)
	{
		bPictureShown = true;
		UE_LOG(
			LogHostWindow, Log, TEXT("The window showed its first picture %.3f s after the start."), Program.GetStartClock().GetSeconds());
	}

	if (Pixels > CaretPixels)
	{
		Pacer.Wake(Shown);
		FrameTimes.Add({Ticked - Start, Painted - Ticked, Shown - Painted});
	}
	else if (!Pacer.IsAwake(Shown))
	{
		KeepSize();
	}
}

void FWindowLoop::WorkInSight(const std::function<void()>& Work)
{
	const FProgressObserver Before = SetProgressObserver([this](const FProgress*) { ShowProgress(); });
	Work();
	SetProgressObserver(Before);
}

void FWindowLoop::ShowProgress()
{
	FSlateApplication::Get().Tick(0.0f);
	// Without a look at its events the system takes the program for dead. They are handled after the work.
	SDL_PumpEvents();
	const TArray<FIntRect> Areas = Editor.UpdatePicture(Picture);
	if (Areas.Num() > 0 && !Display.Show(Picture, Areas))
	{
		bShowAll = true;
	}
}
}
