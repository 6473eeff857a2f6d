// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Opening maps. Map files are not read: the editor gets an empty world under the map's name. Saving is left out.

/** Opens maps. */
class UNREALED_API FEditorFileUtils
{
public:
	/**
	 * Opens a map by the path of its .umap file below the project's content, or by its long package name; false, with a
	 * LogFileHelpers warning, when there is no such file.
	 */
	static bool LoadMap(const FString& Filename, bool LoadAsTemplate = false, const bool bShowProgress = true);
};
