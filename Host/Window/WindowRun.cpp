// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowRun.h"

#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"
#include "Host/Window/DisplayLoss.h"
#include "Host/Window/SdlWindow.h"
#include "Host/Window/WindowLoop.h"
#include "Host/Window/WindowSize.h"

#include <iostream>
#include <memory>
#include <utility>

namespace TintmillHost
{
namespace
{
/** The window's size in pixels before a person has chosen one; less where the display is smaller. */
const FIntPoint FirstSize(1600, 900);

/** What FindDisplay has opened stays open for the window: there is no need to greet a display twice. */
std::unique_ptr<FSdlVideo> FoundVideo;
}

bool FindDisplay(std::string& OutWhy)
{
	FoundVideo = std::make_unique<FSdlVideo>();
	if (const std::string Problem = FoundVideo->GetProblem(); !Problem.empty())
	{
		FoundVideo.reset();
		OutWhy = "No window can be opened: " + Problem + ".";
		return false;
	}
	return true;
}

int RunInWindow(FHostProgram& Program)
{
	const std::unique_ptr<FSdlVideo> Video = FoundVideo ? std::move(FoundVideo) : std::make_unique<FSdlVideo>();
	FEditorWindow& Editor = Program.GetWindow();
	const FIntPoint Size = Editor.GetSlateWindow()->GetSizeInScreen().IntPoint();
	FSdlWindow Display(ToUtf8(Editor.GetSlateWindow()->GetTitle().ToString()),
		Program.GetOptions().bWindowSizeGiven ? Size : RestoreWindowSize(FirstSize));
	if (const std::string Problem = Video->GetProblem() + Display.GetProblem(); !Problem.empty())
	{
		std::cerr << "The window cannot be opened: " << Problem << ".\n";
		return 2;
	}
	WatchDisplay(SDL_GetWindowFromID(Display.GetId()));

	FWindowLoop Loop(Program, Display);
	Loop.Run();
	if (IsDisplayLost())
	{
		Loop.Abandon();
		Display.Abandon();
		Video->Abandon();
		std::cerr << "The display has gone away. The editor ends as if its window had been closed; nothing is lost.\n";
	}
	return 0;
}
}
