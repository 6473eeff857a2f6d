// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/EditorCommands.h"

#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"

#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "TintmillDisplayConfiguration.h"

namespace TintmillHost
{
namespace
{
void SetLayout(const std::string& Name, FHostProgram& Program)
{
	const TArray<FName> Layouts = StandIn::GetViewportLayoutNames();
	const FName Layout(*FromUtf8(Name), FNAME_Find);
	if (Layout.IsNone() || !Layouts.Contains(Layout))
	{
		std::string Names;
		for (const FName& Known : Layouts)
		{
			Names += (Names.empty() ? "" : ", ") + ToUtf8(Known.ToString());
		}
		throw FCommandError("There is no layout '" + Name + "'; there are " + Names + ".");
	}
	StandIn::SetViewportLayout(Layout);
	Program.ResizePanes();
	Program.TickEditor(0.0);
}

void PrintPanes(std::ostream& Output)
{
	const TSharedRef<SLevelViewport> Active = GetActivePane();
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		Output << (Pane == Active ? "* " : "  ") << ToUtf8(Pane->GetConfigKey().ToString()) << ": " << DescribeRecord(GetPaneRecord(*Pane))
			   << '\n';
	}
}
}

void AddEditorCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "The level editor");
	Console.Add("layout NAME", "give the viewport tab another layout, such as OnePane or FourPanes2x2",
		{"layout OnePane", "layout FourPanes2x2"}, [&Program](const FArguments& Words, std::ostream&) { SetLayout(Words[0], Program); });
	Console.Add("activate PANE", "make a pane the one that is worked in", {"activate 1"},
		[](const FArguments& Words, std::ostream&) { StandIn::ActivatePane(FindPane(Words[0])->GetConfigKey()); });
	Console.Add("panes", "list the panes with their looks; * marks the active one", {"panes"},
		[](const FArguments&, std::ostream& Output) { PrintPanes(Output); });
	Console.Add("tick [SECONDS]", "run the editor's frames, one without a time", {"tick", "tick 0.5"},
		[&Program](const FArguments& Words, std::ostream&) {
			Program.TickEditor(Words.empty() ? 0.0 : ParseNumber(Words[0], 0.0, 3600.0, "a time in seconds"));
		});
}
}
