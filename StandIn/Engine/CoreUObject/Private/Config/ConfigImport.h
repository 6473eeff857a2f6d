// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/UnrealType.h"

// Reads configuration properties from the lines of a section.

namespace StandInPrivate
{
/** Where a property of a class is kept: a global one in its own class's file and section. */
void GetConfigPlace(const UClass* Class, const FProperty* Property, const TCHAR* FileName, FString& OutFileName, FString& OutSection);
/** Reads a property of an object from GConfig; a property without lines stays as it is. */
void ImportConfigProperty(UObject* Object, const FProperty* Property, const FString& FileName, const FString& Section);
/** Writes a property of an object to a configuration cache. */
void ExportConfigProperty(
	const UObject* Object, const FProperty* Property, const FString& FileName, const FString& Section, FConfigCacheIni& Config);
}
