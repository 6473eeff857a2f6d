// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Assets/TextureAssets.h"
#include "Host/Console/Console.h"
#include "Host/Editor/PlayScene.h"
#include "Host/Editor/SceneViews.h"
#include "Host/Gallery/GalleryPage.h"
#include "Host/LookBuilder/LookBuilderWindows.h"
#include "Host/OutputLog/ConsoleRunner.h"
#include "Host/Program/ContentWatch.h"
#include "Host/Program/EditorState.h"
#include "Host/Program/HostLog.h"
#include "Host/Program/HostOptions.h"
#include "Host/Program/PhaseClock.h"
#include "Host/Program/Project.h"
#include "Host/TourRun/TourRun.h"
#include "Host/Ui/EditorWindow.h"
#include "Host/Ui/Person.h"

#include "StandIn/EngineLoop.h"
#include "StandIn/StdOutOutputDevice.h"

#include <memory>
#include <optional>

// One run of the program, from the project to the engine's exit.

namespace TintmillHost
{
/** Opens a project in the editor, runs commands, and leaves as the engine does. */
class FHostProgram
{
public:
	explicit FHostProgram(const FHostOptions& InOptions);
	~FHostProgram();

	/** Runs to the end. Returns 0, or 2 when something that the user asked for could not be done; the reason was printed. */
	int Run();

	/** Gives the panes the size that was asked for, or lets them fill the window where one is open. */
	void ResizePanes();

	/** The editor's window; opened when it is first asked for. */
	FEditorWindow& GetWindow();

	/** The person in front of the window. */
	FPerson& GetPerson() { return Person; }

	/** The windows of the look builder. */
	FLookBuilderWindows& GetLookBuilders() { return *LookBuilders; }

	/** What each viewport sees of the scene. */
	FSceneViews& GetSceneViews() { return *SceneViews; }

	/** What one sees of play. */
	FPlayScene& GetPlayScene() { return *PlayScene; }

	/** What the run was asked to do. */
	const FHostOptions& GetOptions() const { return Options; }

	/** The folder for pictures and pages. */
	const std::filesystem::path& GetOutDir() const { return Options.OutDir; }

	/** The tour that is being carried out: the commands of the run, wherever they come from. */
	FTourRun& GetTourRun() { return TourRun; }

	/** How long the start took. */
	const FPhaseClock& GetStartClock() const { return StartClock; }

	/** The folder that holds the project's looks. */
	std::filesystem::path GetContentFolder() const { return Project.GetContentFolder(); }

	/** Whether the editor's window is open. */
	bool IsWindowOpen() const { return Window.has_value(); }

	/** The arguments for another run that goes on where this one has ended; empty if none is to go on. Valid after Run. */
	const std::vector<std::string>& GetArgumentsToGoOn() const { return ArgumentsToGoOn; }

	/** The page that the run leaves behind. */
	FGalleryPage& GetGallery() { return Gallery; }

	/** Runs frames of the editor, for Seconds at 60 frames a second, at least one. */
	void TickEditor(double Seconds);

	/** Follows what has changed in the content folder since the last call, Seconds ago. */
	void PollFiles(double Seconds);

	/** Runs one frame of the editor that lasts Seconds; the panes are drawn in the size they have at its end. */
	void TickFrame(double Seconds);

private:
	void StartEditor();
	void RegisterCommands();
	bool HasUser() const;
	FTour ChooseTour(std::string& OutProblem) const;
	bool RunCommands();
	bool FinishTour();
	bool HandTourOver();
	bool WriteGallery();
	void ExitEditor();
	void KeepState();

	FPhaseClock StartClock;
	FHostOptions Options;
	StandIn::FStdOutOutputDevice StandardOutput;
	FHostLog Log;
	FProject Project;
	FConsole Console;
	FConsoleRunner ConsoleRunner{Console};
	FGalleryPage Gallery;
	FTourRun TourRun{Console, Gallery, Log};
	std::vector<std::string> ArgumentsToGoOn;
	std::filesystem::path WrittenPage;
	FTextureFiles TextureFiles;
	FEditorState EditorState;
	bool bKeepsState = false;

	/** Whether a person on a display uses the editor. */
	bool bHasUser = false;
	StandIn::FEngineLoop EngineLoop;
	std::optional<FContentWatch> ContentWatch;
	std::optional<FOtherAssets> OtherAssets;
	std::optional<FSceneViews> SceneViews;
	std::optional<FPlayScene> PlayScene;
	std::optional<FEditorWindow> Window;
	std::optional<FLookBuilderWindows> LookBuilders;
	FPerson Person;
};
}
