// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/PlayCommands.h"

#include "Host/Console/Console.h"
#include "Host/Editor/Maps.h"
#include "Host/Editor/Panes.h"
#include "Host/Editor/Play.h"
#include "Host/Program/HostProgram.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"

namespace TintmillHost
{
namespace
{
void StartPlay(EPlayWay Way, FHostProgram& Program, std::ostream& Output)
{
	AskForPlay(Way);
	Program.TickEditor(0.0);
	if (!IsPlaying())
	{
		throw FCommandError("Play did not start; the log above says why.");
	}
	Output << DescribeGame() << '\n';
}

EPlayWay ParseWay(const FArguments& Words)
{
	if (Words.empty() || Words[0] == "pane")
	{
		return EPlayWay::InPane;
	}
	if (Words[0] == "window")
	{
		return EPlayWay::InWindow;
	}
	throw FCommandError("Play cannot happen in '" + Words[0] + "'; there are pane and window.");
}

void StopPlay(FHostProgram& Program)
{
	if (!IsPlaying())
	{
		throw FCommandError("Nothing is being played, so there is nothing to stop.");
	}
	GEditor->RequestEndPlayMap();
	Program.TickEditor(0.0);
}

/** The camera that a word names; a pane's as it is now. */
FSceneCamera FindCamera(const std::string& Word, FSceneViews& Views)
{
	if (Word == "chart")
	{
		FSceneCamera Chart;
		Chart.View = ESceneView::Chart;
		return Chart;
	}
	return Views.GetCamera(FindPane(Word)->GetLevelViewportClient());
}

void SetGameCamera(const std::string& View, FHostProgram& Program)
{
	if (!IsPlaying())
	{
		throw FCommandError("Nothing is being played, so the game has no camera.");
	}
	if (View == "own")
	{
		Program.GetPlayScene().ReleaseGame();
	}
	else
	{
		Program.GetPlayScene().HoldGame(FindCamera(View, Program.GetSceneViews()));
	}
}

void SetCamera(const std::string& Who, const std::string& View, FHostProgram& Program)
{
	if (Who == "game")
	{
		SetGameCamera(View, Program);
		return;
	}
	FLevelEditorViewportClient& Client = FindPane(Who)->GetLevelViewportClient();
	FSceneViews& Views = Program.GetSceneViews();
	if (View == "own")
	{
		Views.ResetCamera(Client);
	}
	else
	{
		Views.GetCamera(Client) = FindCamera(View, Views);
	}
	Client.Invalidate();
}

void RunMapCommand(const FArguments& Words, FHostProgram& Program, std::ostream& Output)
{
	if (Words.size() == 1 && Words[0] == "new")
	{
		GEditor->NewMap();
		Program.TickEditor(0.0);
	}
	else if (Words.size() == 2 && Words[0] == "open")
	{
		OpenMap(Words[1]);
		Program.TickEditor(0.0);
	}
	else if (!Words.empty())
	{
		throw FCommandError("The command is: map, map new, or map open NAME.");
	}
	Output << "The map " << GetOpenMap() << '\n';
}
}

void AddPlayCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "Play and maps");
	Console.Add("play [pane|window]", "play from the active pane, in it or in a window; play that runs ends first", {"play", "play window"},
		[&Program](const FArguments& Words, std::ostream& Output) { StartPlay(ParseWay(Words), Program, Output); });
	Console.Add("simulate", "simulate in the active pane, which keeps its own view", {"simulate"},
		[&Program](const FArguments&, std::ostream& Output) { StartPlay(EPlayWay::Simulate, Program, Output); });
	Console.Add("stop", "end play", {"stop"}, [&Program](const FArguments&, std::ostream&) { StopPlay(Program); });
	Console.Add("playing", "show where play runs and what the game displays", {"playing"},
		[](const FArguments&, std::ostream& Output) { Output << (IsPlaying() ? DescribeGame() : "Nothing is being played.") << '\n'; });
	Console.Add("camera PANE|game own|chart|PANE", "let a pane or the game see its own view, a flat chart, or what a pane sees",
		{"camera 1 chart", "camera game 1", "camera 1 own"},
		[&Program](const FArguments& Words, std::ostream&) { SetCamera(Words[0], Words[1], Program); });
	Console.Add("map [new|open] [NAME]", "show the map, make a new one, or open one by its name", {"map", "map open Stage"},
		[&Program](const FArguments& Words, std::ostream& Output) { RunMapCommand(Words, Program, Output); });
}
}
