// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/RecordCommands.h"

#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/Strings.h"

#include "AssetRegistry/AssetData.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "StandIn/AssetFiles.h"
#include "Templates/Casts.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillObject.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** The project's look assets as package names, in the order of their names. */
std::vector<std::string> ListLooks()
{
	std::vector<std::string> Looks;
	for (const StandIn::FMountPoint& MountPoint : StandIn::GetMountPoints())
	{
		TArray<StandIn::FAssetFile> Files;
		StandIn::FAssetScanReport Report;
		StandIn::ScanAssetFiles(MountPoint.Directory, true, Files, Report);
		for (const StandIn::FAssetFile& File : Files)
		{
			if (File.ClassName == UTintmillObject::StaticClass()->GetFName())
			{
				Looks.push_back(ToUtf8(File.PackageName));
			}
		}
	}
	std::sort(Looks.begin(), Looks.end());
	return Looks;
}

/** The look of a package name, or of a short name that is the end of just one. */
UTintmillObject* LoadLook(const std::string& Word)
{
	if (Word == "none")
	{
		return nullptr;
	}
	const std::vector<std::string> Looks = ListLooks();
	std::vector<std::string> Matches;
	std::copy_if(Looks.begin(), Looks.end(), std::back_inserter(Matches),
		[&Word](const std::string& Look) { return Look == Word || (Look.size() > Word.size() && Look.ends_with("/" + Word)); });
	if (Matches.size() != 1)
	{
		std::string Names;
		for (const std::string& Look : Matches.empty() ? Looks : Matches)
		{
			Names += (Names.empty() ? "" : ", ") + Look;
		}
		throw FCommandError((Matches.empty() ? "There is no look '" : "More than one look is called '") + Word + "'; there are "
			+ (Names.empty() ? "none" : Names) + ".");
	}

	const FString PackageName = FromUtf8(Matches.front());
	int32 Slash = INDEX_NONE;
	PackageName.FindLastChar(TEXT('/'), Slash);
	return LoadObject<UTintmillObject>(nullptr, *(PackageName + TEXT(".") + PackageName.Mid(Slash + 1)));
}

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
	Console.Add(
		"record [PANE]", "show what a pane displays, the active one without a name", [](const FArguments& Words, std::ostream& Output) {
			const TSharedRef<SLevelViewport> Pane = Words.empty() ? GetActivePane() : FindPane(Words[0]);
			const FTintmillDisplayConfiguration& Record = GetPaneRecord(*Pane);
			Output << ToUtf8(Pane->GetConfigKey().ToString()) << ": bEnableDisplay=" << (Record.bEnableDisplay ? "True" : "False")
				   << " Intensity=" << Record.Intensity
				   << " LookAsset=" << (Record.LookAsset ? ToUtf8(Record.LookAsset->GetPathName()) : "None") << '\n';
		});
	Console.Add("set PANE FIELD VALUE", "change what a pane displays: enable on|off, intensity 0..1, look NAME|none",
		[](const FArguments& Words, std::ostream&) { SetField(*FindPane(Words[0]), Words[1], Words[2]); });
	Console.Add("looks", "list the project's look assets", [](const FArguments&, std::ostream& Output) {
		for (const std::string& Look : ListLooks())
		{
			Output << "  " << Look << '\n';
		}
	});
}
}
