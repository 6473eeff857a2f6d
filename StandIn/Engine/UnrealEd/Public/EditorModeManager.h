// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The editor's modes, of which there are none here: the class exists because viewport clients name it.

/** The active modes of an editor. */
class UNREALED_API FEditorModeTools
{
public:
	virtual ~FEditorModeTools() {}
};

/** The modes of the level editor. */
UNREALED_API FEditorModeTools& GLevelEditorModeTools();
