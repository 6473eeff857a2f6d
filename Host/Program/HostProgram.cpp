// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostProgram.h"

#include "Host/Commands/AssetCommands.h"
#include "Host/Commands/BrowserCommands.h"
#include "Host/Commands/EditorCommands.h"
#include "Host/Commands/FileCommands.h"
#include "Host/Commands/ListCommands.h"
#include "Host/Commands/LogCommands.h"
#include "Host/Commands/MouseCommands.h"
#include "Host/Commands/PictureCommands.h"
#include "Host/Commands/PlaceCommands.h"
#include "Host/Commands/PlayCommands.h"
#include "Host/Commands/RecordCommands.h"
#include "Host/Commands/ShotCommands.h"
#include "Host/Commands/TourCommands.h"
#include "Host/Commands/UiCommands.h"
#include "Host/Editor/Looks.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/HostState.h"
#include "Host/Program/QuitRequest.h"
#include "Host/Program/ScanProgress.h"
#include "Host/TourRun/ProjectRoad.h"
#include "Host/TourRun/TourHelp.h"
#include "Host/TourRun/TourListener.h"
#include "Host/TourRun/TourTimes.h"
#include "Host/Picture/PngFile.h"
#include "Host/Window/WindowRun.h"

#include "Misc/ConfigCacheIni.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>

namespace TintmillHost
{
namespace
{
/** What a run without a window does when nothing else was asked for. */
constexpr const char* DefaultCommands = "registered TintmillEditor; panes; pictures; notices";
/** What a run does that nothing was asked of and that can save no pictures. */
constexpr const char* DefaultCommandsWithoutPictures = "registered TintmillEditor; panes; draw; notices";

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
	if (Options.bHelpTours)
	{
		RegisterCommands();
		PrintTourHelp(Console, std::cout);
		return 0;
	}
	if (const std::string Problem = Project.Open(Options.Project); !Problem.empty())
	{
		std::cerr << Problem << '\n';
		return 2;
	}

	bHasUser = HasUser();
	bKeepsState = bHasUser || Options.bLastSession;
	StartEditor();
	RegisterCommands();
	const bool bCommandsDone = bHasUser ? RunInWindow(*this) == 0 : RunCommands();
	const bool bGalleryWritten = WriteGallery();
	ExitEditor();
	const bool bTourFinished = FinishTour();
	Project.Close();
	if (!bHasUser && FQuitRequest::IsRequested())
	{
		return FQuitRequest::GetExitCode();
	}
	return bCommandsDone && bGalleryWritten && bTourFinished ? 0 : 2;
}

void FHostProgram::PollFiles(double Seconds)
{
	const TArray<UTintmillObject*> ChangedLooks = ContentWatch->Poll(Seconds);
	if (LookBuilders && ChangedLooks.Num() > 0)
	{
		LookBuilders->Regrade(ChangedLooks);
	}
}

void FHostProgram::TickFrame(double Seconds)
{
	RedrawChangedPanes();
	EngineLoop.TickFrame(static_cast<float>(Seconds));
	DrawResizedPanes();
	ConsoleRunner.RunEntered();
	KeepState();
}

void FHostProgram::TickEditor(double Seconds)
{
	const int Frames = std::max(1, static_cast<int>(std::lround(Seconds / FrameSeconds)));
	for (int Frame = 0; Frame < Frames; ++Frame)
	{
		PollFiles(FrameSeconds);
		if (Window)
		{
			RedrawChangedPanes();
		}
		EngineLoop.TickFrame(static_cast<float>(FrameSeconds));
	}
	ConsoleRunner.RunEntered();
	KeepState();
}

void FHostProgram::KeepState()
{
	if (bKeepsState)
	{
		EditorState.Keep(Window ? &Window->GetFrame() : nullptr);
	}
	TickState();
}

void FHostProgram::StartEditor()
{
	Project.Mount();

	StandIn::FEngineLoopOptions LoopOptions;
	LoopOptions.MaximizedPane = NAME_None;
	if (GConfig == nullptr)
	{
		FConfigCacheIni::InitializeConfigSystem();
	}
	if (bKeepsState)
	{
		EditorState.Restore(LoopOptions);
	}
	StartClock.EndPhase("program and project");
	EngineLoop.PreInit(LoopOptions);
	// The plug-in loaded it already. If it could not, the program has nothing to show and says so as the engine does.
	FModuleManager::Get().LoadModuleChecked(TEXT("TintmillEditor"));
	StartClock.EndPhase("object system, modules, settings, looks");
	{
		const FScanProgress Progress;
		EngineLoop.Init();
	}
	StartClock.EndPhase("engine object, assets found");
	ContentWatch.emplace(Project.GetContentFolder());
	OtherAssets.emplace();
	SceneViews.emplace();
	LookBuilders.emplace();
	PlayScene.emplace(*SceneViews);
	EngineLoop.InitEditor();
	if (bKeepsState)
	{
		EditorState.RestoreLevelEditor();
	}
	StartClock.EndPhase("level editor, panes restored");
	// Panes that are about to be seen on a display are drawn there, once they have their size.
	if (!bHasUser)
	{
		ResizePanes();
	}
	TickEditor(FrameSeconds);
	StartClock.EndPhase(bHasUser ? "first frame" : "first frame, all panes drawn");
}

void FHostProgram::ResizePanes()
{
	SetPaneSize(Window ? FIntPoint(0, 0) : FIntPoint(Options.Width, Options.Height));
}

FEditorWindow& FHostProgram::GetWindow()
{
	if (!Window)
	{
		FFrameContent Content;
		Content.ProjectName = Project.GetName();
		Content.ProjectFolder = Project.GetFolder().string();
		Content.Log = &Log;
		Content.Console = ConsoleRunner.MakeLink();
		Content.IsReadOnly = [this] { return !Project.GetReadOnlySentence().empty(); };
		Window.emplace(FIntPoint(Options.WindowWidth, Options.WindowHeight), Content,
			[this](const FSlateBrush& Brush, const FIntPoint& DeviceSize) { return LookBuilders->FindPicture(Brush, DeviceSize); });
		if (bKeepsState)
		{
			FEditorState::RestoreFrame(Window->GetFrame());
		}
		ResizePanes();
		if (!bHasUser)
		{
			// The first frame lays the panes out, the second draws them in their size.
			TickEditor(2.0 * FrameSeconds);
		}
	}
	return *Window;
}

void FHostProgram::RegisterCommands()
{
	AddAssetCommands(Console, *this);
	AddBrowserCommands(Console, *this);
	AddEditorCommands(Console, *this);
	AddFileCommands(Console, *this);
	AddListCommands(Console);
	AddLogCommands(Console, Log);
	AddMouseCommands(Console, *this);
	AddPictureCommands(Console, *this);
	AddPlaceCommands(Console, *this);
	AddPlayCommands(Console, *this);
	AddRecordCommands(Console);
	AddShotCommands(Console, *this);
	AddTourCommands(Console, *this);
	AddUiCommands(Console, *this);
}

bool FHostProgram::HasUser() const
{
	if (Options.bHeadless || Options.bList || Options.Exec || !Options.Tour.empty() || !Options.Resume.empty())
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

FTour FHostProgram::ChooseTour(std::string& OutProblem) const
{
	FTour Tour;
	if (!Options.Tour.empty())
	{
		OutProblem = ReadTour(Options.Tour, Tour);
		return Tour;
	}
	if (Options.bList || Options.Exec)
	{
		return MakeTourOfCommands(Options.bList ? "registered" : *Options.Exec);
	}
	if (!HasPngFiles())
	{
		return MakeTourOfCommands(DefaultCommandsWithoutPictures);
	}
	if (Project.IsDemo())
	{
		OutProblem = ReadTour(ShortenPath(FProject::GetDemoTour()), Tour);
		return Tour;
	}
	return MakeTourOfCommands(MakeProjectRoad(Project.GetName(), ListLooks()));
}

bool FHostProgram::RunCommands()
{
	std::string Problem;
	const FTour Tour = ChooseTour(Problem);
	if (!Problem.empty())
	{
		std::cerr << Problem << '\n';
		return false;
	}
	if (!Options.Resume.empty())
	{
		std::ifstream State(Options.Resume, std::ios::binary);
		if (!TourRun.TakeOver(State))
		{
			std::cerr << "The tour cannot go on: " << Options.Resume.string() << " does not hold what the run before has left.\n";
			return false;
		}
		State.close();
		std::error_code Ignored;
		std::filesystem::remove(Options.Resume, Ignored);
	}
	TourRun.SetListener(MakeTourListener(*this));
	return TourRun.Play(Tour, std::cout, std::cerr);
}

bool FHostProgram::FinishTour()
{
	if (TourRun.WantsRestart())
	{
		return HandTourOver();
	}
	TourRun.GetFiles().RemoveAll();
	const std::string Problem = TourRun.GetKeptSettings().PutBack();
	if (!Problem.empty())
	{
		std::cerr << Problem << '\n';
	}
	if (Options.bTimes)
	{
		StartClock.Print(std::cout);
		PrintTourTimes(std::cout, TourRun.GetCommands());
	}
	if (!WrittenPage.empty())
	{
		std::cout << "All pictures: " << WrittenPage.string() << std::endl;
	}
	return Problem.empty();
}

bool FHostProgram::HandTourOver()
{
	const std::filesystem::path File = Options.OutDir / "tour-to-go-on.tmp";
	std::error_code Error;
	std::filesystem::create_directories(Options.OutDir, Error);
	std::ofstream State(File, std::ios::binary);
	TourRun.HandOver(State);
	if (!State.flush())
	{
		std::cerr << "The tour cannot go on after the restart: " << File.string()
				  << " cannot be written. Choose another folder with --out.\n";
		return false;
	}
	ArgumentsToGoOn = Options.Arguments;
	ArgumentsToGoOn.insert(ArgumentsToGoOn.end(), {"--resume", File.string()});
	return true;
}

bool FHostProgram::WriteGallery()
{
	if (Gallery.IsEmpty() || TourRun.WantsRestart())
	{
		return true;
	}
	const std::filesystem::path File = Options.OutDir / "index.html";
	if (const std::string Problem = Gallery.Write(File, Project.GetName(), TourRun.MakeLog()); !Problem.empty())
	{
		std::cerr << Problem << '\n';
		return false;
	}
	WrittenPage = File;
	return true;
}

void FHostProgram::ExitEditor()
{
	KeepState();
	FlushState();
	ContentWatch.reset();
	LookBuilders.reset();
	Window.reset();
	EngineLoop.CloseMainFrame();
	PlayScene.reset();
	SceneViews.reset();
	OtherAssets.reset();
	EngineLoop.Exit();
}
}
