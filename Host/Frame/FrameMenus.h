// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

// The menus of the window as tool menus, so that plug-ins add to them as they do in the editor.

namespace TintmillHost
{
class SEditorFrame;

namespace FrameMenus
{
/** The menu bar, the tool bar, and the list of the project's levels. */
extern const FName MainMenu;
extern const FName ToolBar;
extern const FName Levels;

/** The panels below the level editor: the content browser and the output log. */
extern const FName BrowserPanel;
extern const FName LogPanel;

/** Registers the menus of a frame, which must live until they are unregistered. */
void Register(const TSharedRef<SEditorFrame>& Frame);

/** Takes the menus out again; without tool menus nothing happens. */
void Unregister();
}
}
