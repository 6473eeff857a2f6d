// Copyright The Tintmill authors. All rights reserved.

#pragma once

// The look of the active pane by one key.

namespace TintmillHost
{
/**
 * Opens the View menu of the active pane, in it the Tintmill panel, and chooses its check box, all by keys, before anything is drawn.
 * So it does what a person does there, and nothing else. Throws FCommandError, with all menus closed, where a person would not get
 * through either.
 */
void ToggleLookOfActivePane();
}
