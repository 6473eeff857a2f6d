// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/PlaceCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/WindowCommands.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/HostProgram.h"

#include "SLevelViewport.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
void PrintPlace(const FArguments& Words, std::ostream& Output)
{
	const std::vector<FSeen> Things = Words[0] == "all" ? LookAround() : LookAt(FindPane(Words[0]));
	const FSeen Thing = FindOrComplain(Things, JoinWordsFrom(Words, 1));
	Output << std::lround(Thing.Center.X) << ' ' << std::lround(Thing.Center.Y) << '\n';
}
}

void AddPlaceCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "The window, as a person uses it");
	const FWindowCommands Commands(Console, Program);
	Commands.Add("where PANE|all LABEL...", "print where to point at what a label names in a pane or anywhere, in pixels of the window",
		{"where 1 Lit", "where all Tintmill"}, &PrintPlace);
}
}
