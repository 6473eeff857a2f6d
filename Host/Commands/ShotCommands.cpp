// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/ShotCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/WindowCommands.h"
#include "Host/Commands/Words.h"
#include "Host/Editor/Panes.h"
#include "Host/Picture/PngFile.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"

#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "TintmillDisplayConfiguration.h"

#include <utility>
#include <vector>

namespace TintmillHost
{
namespace
{
constexpr double MaxShotScale = 4.0;

/** Where and how a picture is saved: the words FILE [SCALE] [CAPTION...]. */
struct FShotWords
{
	std::filesystem::path File;
	double Scale = 1.0;
	std::string Caption;
};

FShotWords ParseShot(FHostProgram& Program, const FArguments& Words)
{
	FShotWords Shot;
	Shot.File = Program.GetOutDir() / PathFromUtf8(Words[0]);
	const bool bScale = Words.size() > 1 && Words[1].find_first_not_of("0123456789.") == std::string::npos;
	Shot.Scale = bScale ? ParseNumber(Words[1], 0.5, MaxShotScale, "a scale") : 1.0;
	Shot.Caption = JoinWordsFrom(Words, bScale ? 2 : 1);
	if (Shot.Caption.empty())
	{
		Shot.Caption = Shot.File.stem().string();
	}
	return Shot;
}

void SaveShot(FHostProgram& Program, const std::filesystem::path& File, double Scale, std::ostream& Output)
{
	Program.TickEditor(0.0);
	if (const std::string Problem = WritePng(Program.GetWindow().TakePicture(Scale), File); !Problem.empty())
	{
		throw FCommandError(Problem);
	}
	Output << "  " << File.string() << '\n';
}

/** FILE [SCALE] [CAPTION...] */
void TakeShot(FHostProgram& Program, const FArguments& Words, std::ostream& Output)
{
	const FShotWords Shot = ParseShot(Program, Words);
	SaveShot(Program, Shot.File, Shot.Scale, Output);
	Program.GetGallery().AddPicture(Shot.Caption, Shot.File);
}

/** Switches the looks of all panes off while it lives. */
class FLooksOff
{
public:
	FLooksOff()
	{
		for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
		{
			FTintmillDisplayConfiguration& Record = GetPaneRecord(*Pane);
			Switched.emplace_back(Pane, Record.bEnableDisplay);
			Record.bEnableDisplay = false;
		}
	}

	~FLooksOff()
	{
		for (const auto& [Pane, bEnabled] : Switched)
		{
			GetPaneRecord(*Pane).bEnableDisplay = bEnabled;
		}
	}

	FLooksOff(const FLooksOff&) = delete;
	FLooksOff& operator=(const FLooksOff&) = delete;

private:
	std::vector<std::pair<TSharedPtr<SLevelViewport>, bool>> Switched;
};

/** FILE [SCALE] [CAPTION...] */
void TakeComparedShots(FHostProgram& Program, const FArguments& Words, std::ostream& Output)
{
	const FShotWords Shot = ParseShot(Program, Words);
	const std::filesystem::path Without = Shot.File.parent_path() / PathFromUtf8(Shot.File.stem().string() + "-without-looks.png");
	{
		const FLooksOff LooksOff;
		SaveShot(Program, Without, Shot.Scale, Output);
	}
	SaveShot(Program, Shot.File, Shot.Scale, Output);
	Program.GetGallery().AddComparison(Shot.Caption, Without, Shot.File);
}
}

void AddShotCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "Pictures");
	const FWindowCommands Commands(Console, Program);
	Commands.Add("shot FILE [SCALE] [CAPTION...]", "save a picture of the window as a PNG in the folder of --out, at 1 to 4 pixels a pixel",
		{"shot panel.png", "shot panel.png 2 The panel of the active pane"},
		[&Program](const FArguments& Words, std::ostream& Output) { TakeShot(Program, Words, Output); });
	Commands.Add("shot-looks FILE [SCALE] [CAPTION...]",
		"save two pictures of the window, without the looks and with them; the page compares them with a slider",
		{"shot-looks editor.png 1 Four panes, four looks"},
		[&Program](const FArguments& Words, std::ostream& Output) { TakeComparedShots(Program, Words, Output); });
}
}
