// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/RecordCommands.h"

#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Looks.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/Strings.h"

#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillObject.h"

namespace TintmillHost
{
namespace
{
void SetField(SLevelViewport& Pane, const std::string& Field, const std::string& Value)
{
	FTintmillDisplayConfiguration& Record = GetPaneRecord(Pane);
	if (Field == "enable")
	{
		Record.bEnableDisplay = ParseSwitch(Value);
	}
	else if (Field == "intensity")
	{
		Record.Intensity = static_cast<float>(ParseNumber(Value, 0.0, 1.0, "an intensity"));
	}
	else if (Field == "look")
	{
		Record.LookAsset = LoadLook(Value);
	}
	else
	{
		throw FCommandError("There is no field '" + Field + "'; there are enable, intensity, look.");
	}
}
}

void AddRecordCommands(FConsole& Console)
{
	const FConsole::FGroup Group(Console, "What a pane displays");
	Console.Add("record [PANE]", "show what a pane displays, the active one without a name", {"record 1"},
		[](const FArguments& Words, std::ostream& Output) {
			const TSharedRef<SLevelViewport> Pane = Words.empty() ? GetActivePane() : FindPane(Words[0]);
			const FTintmillDisplayConfiguration& Record = GetPaneRecord(*Pane);
			Output << ToUtf8(Pane->GetConfigKey().ToString()) << ": bEnableDisplay=" << (Record.bEnableDisplay ? "True" : "False")
				   << " Intensity=" << Record.Intensity
				   << " LookAsset=" << (Record.LookAsset ? ToUtf8(Record.LookAsset->GetPathName()) : "None") << '\n';
		});
	Console.Add("set PANE FIELD VALUE", "change what a pane displays: enable on|off, intensity 0..1, look NAME|none",
		{"set 1 look TealOrange", "set 1 intensity 0.5", "set 1 enable on"},
		[](const FArguments& Words, std::ostream&) { SetField(*FindPane(Words[0]), Words[1], Words[2]); });
	Console.Add("looks", "list the project's look assets", {"looks"}, [](const FArguments&, std::ostream& Output) {
		for (const std::string& Look : ListLooks())
		{
			Output << "  " << Look << '\n';
		}
	});
}
}
