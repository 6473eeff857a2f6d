// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/PictureCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Looks.h"
#include "Host/Editor/Panes.h"
#include "Host/Editor/Play.h"
#include "Host/Picture/PngFile.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"

#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/LookFiles.h"
#include "TintmillDisplayConfiguration.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
std::filesystem::path Save(const FPicture& Picture, const std::filesystem::path& File, std::ostream& Output)
{
	if (const std::string Problem = WritePng(Picture, File); !Problem.empty())
	{
		throw FCommandError(Problem);
	}
	Output << "  " << File.string() << '\n';
	return File;
}

/** The pane's key as a file name: "FourPanes2x2.Viewport 1.Viewport0" is "FourPanes2x2-Viewport1-Viewport0". */
std::string MakeFileStem(const FName& ConfigKey)
{
	std::string Stem = ToUtf8(ConfigKey.ToString());
	Stem.erase(std::remove(Stem.begin(), Stem.end(), ' '), Stem.end());
	std::replace(Stem.begin(), Stem.end(), '.', '-');
	return Stem;
}

/** The left half of one picture beside the right half of another of the same size, with a thin line between. */
FPicture JoinHalves(const FPicture& Left, const FPicture& Right)
{
	FPicture Joined = Left;
	const int32 Middle = Joined.Width / 2;
	for (int32 Row = 0; Row < Joined.Height; ++Row)
	{
		for (int32 Column = Middle; Column < Joined.Width; ++Column)
		{
			const int32 Index = Row * Joined.Width + Column;
			Joined.Pixels[Index] = Column == Middle ? FColor::White : Right.Pixels[Index];
		}
	}
	return Joined;
}

/** Two pictures beside each other, with a thin line between. */
FPicture PutBeside(const FPicture& Left, const FPicture& Right)
{
	constexpr int32 Gap = 2;
	FPicture Both;
	Both.Width = Left.Width + Gap + Right.Width;
	Both.Height = std::max(Left.Height, Right.Height);
	Both.Pixels.Init(FColor::White, Both.Width * Both.Height);
	const auto Put = [&Both](const FPicture& Part, int32 At) {
		for (int32 Row = 0; Row < Part.Height; ++Row)
		{
			std::copy_n(&Part.Pixels[Row * Part.Width], Part.Width, &Both.Pixels[Row * Both.Width + At]);
		}
	};
	Put(Left, 0);
	Put(Right, Left.Width + Gap);
	return Both;
}

/** The words from the third on, or what is said without them. */
std::string CaptionOf(const FArguments& Words, const std::string& Otherwise)
{
	const std::string Caption = JoinWordsFrom(Words, 2);
	return Caption.empty() ? Otherwise : Caption;
}

/** game|both [FILE] [CAPTION...] */
void SaveGamePicture(const FArguments& Words, FHostProgram& Program, std::ostream& Output)
{
	const std::string Description = DescribeGame();
	const FPicture Game = DrawGame();
	const std::string Name = Words.size() > 1 ? Words[1] : Words[0] + ".png";
	Program.GetGallery().AddPicture(CaptionOf(Words, Description),
		Save(Words[0] == "game" ? Game : PutBeside(DrawPane(*GetActivePane()), Game), Program.GetOutDir() / PathFromUtf8(Name), Output));
}

/** LOOK [PANE] [FILE] [CAPTION...] */
void CompareLook(const FArguments& Words, FHostProgram& Program, std::ostream& Output)
{
	UTintmillObject* const Look = LoadLook(Words[0]);
	if (!Look)
	{
		throw FCommandError("There is no look '" + Words[0] + "' to compare with.");
	}
	const TSharedRef<SLevelViewport> Pane = Words.size() > 1 ? FindPane(Words[1]) : GetActivePane();
	const std::string Name = Words[0].substr(Words[0].rfind('/') + 1);
	const std::filesystem::path File = Program.GetOutDir() / PathFromUtf8(Words.size() > 2 ? Words[2] : Name + ".png");

	FTintmillDisplayConfiguration& Record = GetPaneRecord(*Pane);
	const FTintmillDisplayConfiguration Before = Record;
	Record.LookAsset = Look;
	Record.Intensity = 1.0f;
	const FPicture Without = DrawPaneWithLook(*Pane, false);
	const FPicture With = DrawPaneWithLook(*Pane, true);
	Record = Before;

	const std::filesystem::path WithoutFile =
		Save(Without, File.parent_path() / PathFromUtf8(File.stem().string() + "-without-look.png"), Output);
	const std::string Caption = JoinWordsFrom(Words, 3);
	const std::string Problem = ToUtf8(StandIn::GetLookProblem(Look));
	Program.GetGallery().AddComparison(
		!Caption.empty() ? Caption : Name + (Problem.empty() ? "" : " cannot be used: " + Problem), WithoutFile, Save(With, File, Output));
}

/** Saves every pane's picture without and with its look, side by side on the page. */
void SavePictures(FHostProgram& Program, std::ostream& Output)
{
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		const std::string Stem = MakeFileStem(Pane->GetConfigKey());
		const std::string Caption = ToUtf8(Pane->GetConfigKey().ToString()) + ": " + DescribeRecord(GetPaneRecord(*Pane));
		const std::filesystem::path Without =
			Save(DrawPaneWithLook(*Pane, false), Program.GetOutDir() / PathFromUtf8(Stem + "-without-look.png"), Output);
		const std::filesystem::path With =
			Save(DrawPaneWithLook(*Pane, true), Program.GetOutDir() / PathFromUtf8(Stem + "-with-look.png"), Output);
		Program.GetGallery().AddComparison(Caption, Without, With);
	}
}
}

void AddPictureCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "Pictures");
	Console.Add("draw [PANE]", "draw a pane, or all of them", {"draw", "draw 1"}, [](const FArguments& Words, std::ostream&) {
		for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
		{
			if (Words.empty() || Pane == FindPane(Words[0]))
			{
				DrawPane(*Pane);
			}
		}
	});
	Console.Add("picture PANE [FILE] [CAPTION...]",
		"draw a pane, the game, or both (the active pane beside the game), and save the picture as a PNG in the folder of --out",
		{"picture 1", "picture game game.png The game"}, [&Program](const FArguments& Words, std::ostream& Output) {
			if (Words[0] == "game" || Words[0] == "both")
			{
				SaveGamePicture(Words, Program, Output);
				return;
			}
			const TSharedRef<SLevelViewport> Pane = FindPane(Words[0]);
			const std::string Name = Words.size() > 1 ? Words[1] : MakeFileStem(Pane->GetConfigKey()) + ".png";
			const std::filesystem::path File = Save(DrawPane(*Pane), Program.GetOutDir() / PathFromUtf8(Name), Output);
			Program.GetGallery().AddPicture(
				CaptionOf(Words, ToUtf8(Pane->GetConfigKey().ToString()) + ": " + DescribeRecord(GetPaneRecord(*Pane))), File);
		});
	Console.Add("compare PANE [FILE]", "save one picture of a pane, its left half without and its right half with the look",
		{"compare 1 halves.png"}, [&Program](const FArguments& Words, std::ostream& Output) {
			const TSharedRef<SLevelViewport> Pane = FindPane(Words[0]);
			const std::string Name = Words.size() > 1 ? Words[1] : MakeFileStem(Pane->GetConfigKey()) + "-halves.png";
			const FPicture Joined = JoinHalves(DrawPaneWithLook(*Pane, false), DrawPaneWithLook(*Pane, true));
			Program.GetGallery().AddPicture(
				ToUtf8(Pane->GetConfigKey().ToString()) + ": without and with " + DescribeRecord(GetPaneRecord(*Pane)),
				Save(Joined, Program.GetOutDir() / PathFromUtf8(Name), Output));
		});
	Console.Add("compare-look LOOK [PANE] [FILE] [CAPTION...]",
		"save pictures of a pane, the active one if none is named, without any look and with this one at full intensity; the pane keeps its own",
		{"compare-look TealOrange", "compare-look TealOrange 1 teal.png Teal shadows"},
		[&Program](const FArguments& Words, std::ostream& Output) { CompareLook(Words, Program, Output); });
	Console.Add("pictures", "save every pane's picture without and with its look", {"pictures"},
		[&Program](const FArguments&, std::ostream& Output) { SavePictures(Program, Output); });
}
}
