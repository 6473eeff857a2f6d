// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/ConfigDocument.h"

// The files below the saved one: Base and Default.

namespace StandIn
{
/** Lays a hierarchy file over what the ones below it have given; + - . and ! before a key are operators. */
void ApplyHierarchyDocument(FConfigFile& File, const FConfigDocument& Document, const FString& Filename);

/** Reads the Base and Default files of an ini; null when there is none. */
TSharedPtr<FConfigFile> ReadConfigHierarchy(const FString& BaseIniName);
}
