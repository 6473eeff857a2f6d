// Copyright The Tintmill authors. All rights reserved.

#include "EditorModeManager.h"

FEditorModeTools& GLevelEditorModeTools()
{
	static FEditorModeTools ModeTools;
	return ModeTools;
}
