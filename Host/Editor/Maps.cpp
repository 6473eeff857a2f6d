// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/Maps.h"

#include "Host/Console/Console.h"
#include "Host/Program/Strings.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "FileHelpers.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

#include <algorithm>
#include <filesystem>

namespace TintmillHost
{
std::vector<std::string> ListMaps()
{
	const std::filesystem::path Content = ToUtf8(FPaths::ConvertRelativePathToFull(FPaths::ProjectContentDir()));
	std::vector<std::string> Maps;
	std::error_code Error;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Content, Error))
	{
		if (Entry.path().extension() == ".umap")
		{
			Maps.push_back("/Game/" + Entry.path().lexically_relative(Content).replace_extension().generic_string());
		}
	}
	std::sort(Maps.begin(), Maps.end());
	return Maps;
}

void OpenMap(const std::string& Name)
{
	const std::vector<std::string> Maps = ListMaps();
	std::vector<std::string> Matches;
	std::copy_if(Maps.begin(), Maps.end(), std::back_inserter(Matches),
		[&Name](const std::string& Map) { return Map == Name || Map.ends_with("/" + Name); });
	if (Matches.size() != 1)
	{
		std::string Names;
		for (const std::string& Map : Matches.empty() ? Maps : Matches)
		{
			Names += (Names.empty() ? "" : ", ") + Map;
		}
		throw FCommandError((Matches.empty() ? "There is no map '" : "More than one map is called '") + Name + "'; there are "
			+ (Names.empty() ? "none" : Names) + ".");
	}
	if (!FEditorFileUtils::LoadMap(FromUtf8(Matches.front())))
	{
		throw FCommandError("The map " + Matches.front() + " could not be opened; the log above says why.");
	}
}

std::string GetOpenMap()
{
	return ToUtf8(GEditor->GetEditorWorldContext().World()->GetOutermost()->GetName());
}
}
