// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostProgram.h"

#include "Host/Commands/AssetCommands.h"
#include "Host/Commands/EditorCommands.h"
#include "Host/Commands/ListCommands.h"
#include "Host/Commands/PictureCommands.h"
#include "Host/Commands/PlayCommands.h"
#include "Host/Commands/RecordCommands.h"
#include "Host/Commands/UiCommands.h"
#include "Host/Console/CommandText.h"
#include "Host/Editor/Panes.h"
#include "Host/Window/WindowRun.h"

#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"
#include "StandIn/LookFiles.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>

namespace TintmillHost
{
namespace
{
/** What a run without a window does when nothing else was asked for. */
constexpr const char* DefaultCommands = "registered TintmillEditor; panes; pictures; notices";

constexpr double FrameSeconds = 1.0 / 60.0;
}

FHostProgram::FHostProgram(const FHostOptions& InOptions)
	: Options(InOptions)
	, Person([this](double Seconds) { TickEditor(Seconds); })
{
	GLog->AddOutputDevice(&StandardOutput);
}

FHostProgram::~FHostProgram()
{
	GLog->RemoveOutputDevice(&StandardOutput);
}

int FHostProgram::Run()
{
	if (const std::string Problem = Project.Open(Options.Project); !Problem.empty())
	{
		std::cerr << Problem << '\n';
		return 2;
	}

	StartEditor();
	RegisterCommands();
	const bool bCommandsDone = HasUser() ? RunInWindow(*this) == 0 : RunCommands();
	const bool bGalleryWritten = WriteGallery();
	ExitEditor();
	return bCommandsDone && bGalleryWritten ? 0 : 2;
}

void FHostProgram::TickEditor(double Seconds)
{
	const TArray<UTintmillObject*> ChangedLooks = StandIn::PollLookFiles();
	if (LookBuilders)
	{
		LookBuilders->Regrade(ChangedLooks);
	}
	if (Window)
	{
		RedrawChangedPanes();
	}
	const int Frames = std::max(1, static_cast<int>(std::lround(Seconds / FrameSeconds)));
	for (int Frame = 0; Frame < Frames; ++Frame)
	{
		EngineLoop.TickFrame(static_cast<float>(FrameSeconds));
	}
}

void FHostProgram::StartEditor()
{
	Project.Mount();

	StandIn::FEngineLoopOptions LoopOptions;
	LoopOptions.MaximizedPane = NAME_None;
	StartClock.EndPhase("program and project");
	EngineLoop.PreInit(LoopOptions);
	// The plug-in loaded it already. If it could not, the program has nothing to show and says so as the engine does.
	FModuleManager::Get().LoadModuleChecked(TEXT("TintmillEditor"));
	StartClock.EndPhase("object system, modules, settings, looks");
	EngineLoop.Init();
	StartClock.EndPhase("engine object");
	SceneViews.emplace();
	LookBuilders.emplace();
	PlayScene.emplace(*SceneViews);
	EngineLoop.InitEditor();
	StartClock.EndPhase("level editor, panes restored");
	ResizePanes();
	TickEditor(FrameSeconds);
	StartClock.EndPhase("first frame, all panes drawn");
}

void FHostProgram::ResizePanes()
{
	SetPaneSize(Window ? FIntPoint(0, 0) : FIntPoint(Options.Width, Options.Height));
}

FEditorWindow& FHostProgram::GetWindow()
{
	if (!Window)
	{
		Window.emplace(FIntPoint(Options.WindowWidth, Options.WindowHeight), Project.GetName(),
			[this](const FSlateBrush& Brush, const FIntPoint& DeviceSize) { return LookBuilders->FindPicture(Brush, DeviceSize); });
		ResizePanes();
		// The first frame lays the panes out, the second draws them in their size.
		TickEditor(2.0 * FrameSeconds);
	}
	return *Window;
}

void FHostProgram::RegisterCommands()
{
	Console.Add("times", "show how long the start took, phase by phase",
		[this](const FArguments&, std::ostream& Output) { StartClock.Print(Output); });
	AddAssetCommands(Console, *this);
	AddEditorCommands(Console, *this);
	AddListCommands(Console);
	AddPictureCommands(Console, *this);
	AddPlayCommands(Console, *this);
	AddRecordCommands(Console);
	AddUiCommands(Console, *this);
}

bool FHostProgram::HasUser() const
{
	if (Options.bHeadless || Options.bList || Options.Exec || !Options.Tour.empty())
	{
		return false;
	}
	std::string Why;
	const bool bDisplay = FindDisplay(Why);
	if (!bDisplay)
	{
		std::cerr << Why << " Running without a window.\n";
	}
	return bDisplay;
}

bool FHostProgram::RunCommands()
{
	std::string Commands = Options.bList ? "registered" : Options.Exec.value_or(DefaultCommands);
	if (!Options.Tour.empty())
	{
		std::ifstream Tour(Options.Tour);
		if (!Tour)
		{
			std::cerr << "The tour " << Options.Tour.string() << " cannot be read; give a text file of console commands with --tour.\n";
			return false;
		}
		Commands.assign(std::istreambuf_iterator<char>(Tour), std::istreambuf_iterator<char>());
	}

	for (const std::string& Command : SplitCommands(Commands))
	{
		try
		{
			Console.Run(Command, std::cout);
			std::cout.flush();
		}
		catch (const FCommandError& Error)
		{
			std::cerr << Error.what() << '\n';
			return false;
		}
	}
	return true;
}

bool FHostProgram::WriteGallery()
{
	if (Gallery.IsEmpty())
	{
		return true;
	}
	const std::filesystem::path File = Options.OutDir / "index.html";
	if (const std::string Problem = Gallery.Write(File, Project.GetName(), Log.GetText()); !Problem.empty())
	{
		std::cerr << Problem << '\n';
		return false;
	}
	std::cout << "All pictures: " << File.string() << '\n';
	return true;
}

void FHostProgram::ExitEditor()
{
	LookBuilders.reset();
	Window.reset();
	EngineLoop.CloseMainFrame();
	PlayScene.reset();
	SceneViews.reset();
	EngineLoop.Exit();
}
}
