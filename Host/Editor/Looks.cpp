// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/Looks.h"

#include "Host/Console/Console.h"
#include "Host/Program/Strings.h"

#include "StandIn/AssetFiles.h"
#include "TintmillObject.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>

namespace TintmillHost
{
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
}
