// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

// The project's maps, by their package names such as /Game/Maps/Stage or the ends of these.

namespace TintmillHost
{
/** The maps below the project's content, in the order of their names. */
std::vector<std::string> ListMaps();

/** Opens a map by its package name or the end of just one. Throws FCommandError, with the maps there are, when there is none. */
void OpenMap(const std::string& Name);

/** The package name of the map that is open; one that was never saved is below /Temp/. */
std::string GetOpenMap();
}
