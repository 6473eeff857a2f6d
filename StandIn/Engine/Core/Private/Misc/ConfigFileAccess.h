// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/ConfigCacheIni.h"

/** What the configuration's own files may do with an ini file in memory. */
class FConfigFileAccess
{
public:
	/** Sets the hierarchy below a saved file. */
	static void SetHierarchy(FConfigFile& File, const TSharedPtr<FConfigFile>& Hierarchy);

	/** The lines as they were last read or written. */
	static TSharedPtr<StandIn::FConfigDocument>& Document(FConfigFile& File);

	/** Makes what the lines and the hierarchy yield. */
	static void MakeKnown(const FConfigFile& File, const FString& Filename, FConfigFile& OutKnown);

	/** Lays a saved file's lines over the content: the first line of a key replaces what is there, later ones add. */
	static void ApplySaved(FConfigFile& File, const StandIn::FConfigDocument& Document, const FString& Filename);
};
