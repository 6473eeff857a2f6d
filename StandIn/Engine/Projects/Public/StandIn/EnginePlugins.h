// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Not in the engine: an installation whose engine plug-ins are elsewhere, or missing.

namespace StandIn
{
/** Sets the folder in which the next refresh looks for the engine's plug-ins; empty for FPaths::EnginePluginsDir(). */
PROJECTS_API void SetEnginePluginsDir(const FString& Directory);
}
