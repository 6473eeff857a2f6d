// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/TourCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"
#include "Host/TourRun/TourTimes.h"

#include "CoreGlobals.h"
#include "Misc/Paths.h"

namespace TintmillHost
{
namespace
{
constexpr double MaxWaitSeconds = 3600.0;
}

void AddTourCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "The tour itself");
	Console.Add("title TEXT...", "name the page that the run leaves behind", {"title The whole editor in fifteen pictures"},
		[&Program](const FArguments& Words, std::ostream&) { Program.GetGallery().SetTitle(JoinWords(Words)); });
	Console.Add("chapter TEXT...", "begin a chapter of the page", {"chapter Choosing a look"},
		[&Program](const FArguments& Words, std::ostream&) { Program.GetGallery().BeginChapter(JoinWords(Words)); });
	Console.Add("wait SECONDS", "let time pass in the editor", {"wait 0.5"}, [&Program](const FArguments& Words, std::ostream&) {
		Program.TickEditor(ParseNumber(Words[0], 0.0, MaxWaitSeconds, "a time in seconds"));
	});
	Console.Add("restart", "leave the editor as the engine does, start it anew, and go on with the next command", {"restart"},
		[&Program](const FArguments&, std::ostream&) {
			if (!Program.GetTourRun().IsPlaying())
			{
				throw FCommandError("Only a tour can restart the editor: it goes on with its next command then.");
			}
			Program.GetTourRun().AskForRestart();
		});
	Console.Add("keep-settings", "put the project's settings back, byte for byte, when the run ends, whatever happens until then",
		{"keep-settings"}, [&Program](const FArguments&, std::ostream&) {
			Program.GetTourRun().GetKeptSettings().Keep(ToUtf8(FPaths::ConvertRelativePathToFull(GEditorPerProjectIni)));
		});
	Console.Add("times", "show how long the start took, phase by phase, and every command so far", {"times"},
		[&Program](const FArguments&, std::ostream& Output) {
			Program.GetStartClock().Print(Output);
			PrintTourTimes(Output, Program.GetTourRun().GetCommands());
		});
}
}
