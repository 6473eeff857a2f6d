// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <string>

namespace StandIn
{
struct FEngineLoopOptions;
}

// What of the level editor comes back when the program starts again: the layout of every tab, the pane that fills the first one,
// the pane that is worked in, and the map.

namespace TintmillHost
{
/** Brings back where the last session ended, and keeps where this one goes. */
class FEditorState
{
public:
	/** Reads layout, filling pane and map into the options of the start; what is not there any more is left as it is. */
	void Restore(StandIn::FEngineLoopOptions& InOutOptions);

	/** Opens the other tabs and activates the pane; to be called once the level editor is open. */
	void FinishRestoring();

	/** Keeps what has changed since the start; to be called every frame. */
	void Keep() const;

private:
	/** The pane that is active when nothing else was asked for. */
	std::string FirstActive;
};
}
